ethernet|e
loopback|l
<0-7>|unit
