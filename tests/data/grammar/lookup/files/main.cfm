t|test|k||
  access|literal access|k||
  !
  aaa|literal aaa|k||
  !
  <1-10>|a range|k||
  !
  a.b.c.d|an address|k||
  !
  &ifs.cfm|an interface|k||
  !
  word|any word|||
  !
!
u|unknown|k||
  <anything>|accepts all|||
  !
  id|a number|||
  !
!
opt|options|k||
  first|f|k/ob/cf|second|
    <cr>|||||
    !
  !
  second|s|k/ob||
    <cr>|||||
    !
  !
  third|th|k/ob||
    <cr>|||||
    !
  !
!
