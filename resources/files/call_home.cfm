contact-email-addr|contact e-mail address|k||
  word|word|o||
    <cr>||||
    !
  !
!
phone-number|phone number|k||
  word|word|o||
    <cr>||||
    !
  !
!
street-address|street address|k||
  line|text|lb/le/wa||
    <cr>||||
    !
  !
!
customer-id|customer id|k||
  line|text|lb/le/wa||
    <cr>||||
    !
  !
!
site-id|site id|k||
  line|text|lb/le/wa||
    <cr>||||
    !
  !
!
contract-id|contract id|k||
  line|text|lb/le/wa||
    <cr>||||
    !
  !
!
sender|sender addresses|k||
  from|from|k||
    word|word|||
      <cr>||||
      !
    !
  !
  reply-to|reply-to|k||
    word|word|||
      <cr>||||
      !
    !
  !
!
mail-server|mail server|k||
  word|word|k||
    priority|priority|k||
      id|id|||
        <cr>||||
        !
      !
    !
  !
!
http-proxy|http proxy|k||
  line|line|lb/le/wa||
    <cr>||||
    !
  !
!
vrf|vrf|k||
  word|word|o||
    <cr>||||
    !
  !
!
source-interface|source interface|k||
  &interfacefile.cfm|interface type|k||
    <number>|interface number|k||
      <cr>||||
      !
    !
  !
!
source-ip-address|source address|k||
  a.b.c.d|a.b.c.d|o||
    <cr>||||
    !
  !
!
profile|call home profile|k||
  word|word|k||
    <cr>||||@(cfg-call-home-profile)# call_home_profile.cfm
    !
  !
!
alert-group|alert group|k||
  line|line|lb/le/wa||
    <cr>||||
    !
  !
!
alert-group-config|alert group configuration|k||
  line|line|lb/le/wa||
    <cr>||||
    !
  !
!
copy|copy a profile|k||
  line|line|lb/le/wa||
    <cr>||||
    !
  !
!
data-privacy|data privacy|k||
  line|line|lb/le/wa||
    <cr>||||
    !
  !
!
syslog-throttling|syslog-throttling|k||
  <cr>||||
  !
!
rate-limit|messages per minute|k||
  id|id|o||
    <cr>||||
    !
  !
!
exit|exit|k||
  <cr>||||
  !
!
