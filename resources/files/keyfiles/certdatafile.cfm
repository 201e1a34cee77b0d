0:0|certificate data: a group of up to eight digits
<0-ffffffff>|certificate data: a group of up to eight hex digits
