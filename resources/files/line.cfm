exec-timeout|set the exec timeout|k||
  id|id|o||
    id|id|||
      <cr>||||
      !
    !
  !
  id|id|o||
    <cr>||||
    !
  !
!
logging|modify message logging facilities|k||
  synchronous|synchronous|k||
    <cr>||||
    !
    line|line|lb/le/wa||
      <cr>||||
      !
    !
  !
!
stopbits|set async line stop bits|k||
  id|id|o||
    <cr>||||
    !
  !
!
privilege|change privilege level for line|k||
  level|level|k||
    id|id|o||
      <cr>||||
      !
    !
  !
!
login|enable password checking|k/o||
  <cr>||sb||
  !
  local|local|o||
    <cr>||||
    !
  !
  authentication|authentication|k||
    word|word|o||
      <cr>||||
      !
    !
  !
!
transport|define transport protocols for line|k||
  input|input|k/o||
    all|all|||
      <cr>||||
      !
    !
    none|none|||
      <cr>||||
      !
    !
    ssh|ssh|||
      <cr>||||
      !
      telnet|telnet|||
        <cr>||||
        !
      !
    !
    telnet|telnet|||
      <cr>||||
      !
      ssh|ssh|||
        <cr>||||
        !
      !
    !
    pad|pad|||
      <cr>||||
      !
    !
    rlogin|rlogin|||
      <cr>||||
      !
    !
    udptn|udptn|||
      <cr>||||
      !
    !
  !
  output|output|k/o||
    all|all|||
      <cr>||||
      !
    !
    none|none|||
      <cr>||||
      !
    !
    ssh|ssh|||
      <cr>||||
      !
      telnet|telnet|||
        <cr>||||
        !
      !
    !
    telnet|telnet|||
      <cr>||||
      !
      ssh|ssh|||
        <cr>||||
        !
      !
    !
    line|line|lb/le/wa||
      <cr>||||
      !
    !
  !
  preferred|preferred|k/o||
    none|none|||
      <cr>||||
      !
    !
    ssh|ssh|||
      <cr>||||
      !
    !
    telnet|telnet|||
      <cr>||||
      !
    !
    line|line|lb/le/wa||
      <cr>||||
      !
    !
  !
!
password|set a password|k||
  id|id|||
    line|line|lb/le/wa/o||
      <cr>||||
      !
    !
  !
  line|line|lb/le/wa/o||
    <cr>||||
    !
  !
!
exec|start an exec|k||
  <cr>||sn||
  !
  prompt|prompt|k||
    timestamp|timestamp|k||
      <cr>||||
      !
    !
  !
!
exec-character-bits|size of characters to the command exec|k||
  id|id|||
    <cr>||||
    !
  !
!
history|enable and control the command history function|k||
  <cr>||||
  !
  size|size|k||
    id|id|o||
      <cr>||||
      !
    !
  !
!
access-class|filter connections based on an ip access list|k||
  word|word|o||
    in|in|k||
      <cr>||||
      !
      vrf-also|vrf-also|k||
        <cr>||||
        !
      !
    !
    out|out|k||
      <cr>||||
      !
    !
  !
!
ipv6|ipv6 options|k||
  access-class|access-class|k||
    word|word|k||
      in|in|k||
        <cr>||||
        !
      !
      out|out|k||
        <cr>||||
        !
      !
    !
  !
!
session-timeout|close a connection without input traffic|k||
  id|id|||
    <cr>||||
    !
    line|line|lb/le/wa||
      <cr>||||
      !
    !
  !
!
absolute-timeout|set absolute timeout for line disconnection|k||
  id|id|||
    <cr>||||
    !
  !
!
autocommand|automatically execute an exec command|k||
  line|text|lb/le/wa||
    <cr>||||
    !
  !
!
speed|set the transmit and receive speeds|k||
  id|id|o||
    <cr>||||
    !
  !
!
flowcontrol|set the flow control|k||
  line|line|lb/le/wa||
    <cr>||||
    !
  !
!
modem|configure the line for modem operation|k||
  line|line|lb/le/wa||
    <cr>||||
    !
  !
!
length|set number of lines on a screen|k||
  id|id|o||
    <cr>||||
    !
  !
!
width|set width of the display terminal|k||
  id|id|o||
    <cr>||||
    !
  !
!
terminal-type|set the terminal type|k||
  word|word|||
    <cr>||||
    !
  !
!
accounting|accounting parameters|k||
  line|line|lb/le/wa||
    <cr>||||
    !
  !
!
authorization|authorization parameters|k||
  exec|exec|k||
    word|word|||
      <cr>||||
      !
    !
  !
  commands|commands|k||
    id|id|||
      word|word|||
        <cr>||||
        !
      !
    !
  !
!
escape-character|change the current line's escape character|k||
  line|line|lb/le/wa||
    <cr>||||
    !
  !
!
no-escape|turn off the escape character|k||
  <cr>||||
  !
!
motd-banner|enable the display of the motd banner|k||
  <cr>||||
  !
!
exec-banner|enable the display of the exec and motd banners|k||
  <cr>||||
  !
!
logout-warning|warning countdown before absolute timeout|k||
  id|id|||
    <cr>||||
    !
  !
!
activation-character|define the activation character|k/n||
  id|ascii value|o||
    <cr>||||
    !
  !
!
stopbits-character|stop bits of a character|k||
  line|line|lb/le/wa||
    <cr>||||
    !
  !
!
databits|set number of data bits per character|k||
  id|id|||
    <cr>||||
    !
  !
!
parity|set terminal parity|k||
  line|line|lb/le/wa||
    <cr>||||
    !
  !
!
rotary|add line to a rotary group|k||
  id|id|||
    <cr>||||
    !
  !
!
autoselect|set line to autoselect|k||
  line|line|lb/le/wa||
    <cr>||||
    !
  !
!
notify|inform users of output from concurrent sessions|k||
  <cr>||||
  !
!
monitor|copy debug output to the current terminal line|k||
  <cr>||||
  !
!
refuse-message|define a refuse banner|k||
  line|line|lb/le/wa||
    <cr>||||
    !
  !
!
vacant-message|define a vacant banner|k||
  line|line|lb/le/wa||
    <cr>||||
    !
  !
!
timeout|timeouts for the line|k||
  login|login|k||
    response|response|k||
      id|id|||
        <cr>||||
        !
      !
    !
  !
!
data-character-bits|size of characters being handled|k||
  id|id|||
    <cr>||||
    !
  !
!
international|enable international 8-bit character support|k||
  <cr>||||
  !
!
lockable|allow users to lock a line|k||
  <cr>||||
  !
!
padding|set padding for a specified output character|k||
  line|line|lb/le/wa||
    <cr>||||
    !
  !
!
editing|enable command line editing|k||
  <cr>||||
  !
!
full-help|provide help to unprivileged user|k||
  <cr>||||
  !
!
location|enter terminal location description|k||
  line|text|lb/le/wa||
    <cr>||||
    !
  !
!
session-disconnect-warning|set warning countdown for session-timeout|k||
  line|line|lb/le/wa||
    <cr>||||
    !
  !
!
exit|exit from line configuration mode|k||
  <cr>||||
  !
!
stop-character|stop character|k||
  id|ascii value|o||
    <cr>||||
    !
  !
!
start-character|start character|k||
  id|ascii value|o||
    <cr>||||
    !
  !
!
special-character-bits|size of the escape and other special characters|k||
  7|7 bits|k/o||
    <cr>||||
    !
  !
  8|8 bits|k/o||
    <cr>||||
    !
  !
!
flush-at-activation|clear pending input when the line starts|k/sn||
  <cr>||||
  !
!
domain-lookup|look up names in the domain name system|k/sn||
  <cr>||||
  !
!
autohangup|hang up when the last connection closes|k||
  <cr>||||
  !
  session-timeout|also when the session times out|k||
    <cr>||||
    !
  !
!
callback|callback settings of the line|k||
  forced-wait|wait before a callback|k||
    id|seconds|o||
      <cr>||||
      !
    !
  !
  nodsr-wait|wait for dsr|k||
    id|milliseconds|o||
      <cr>||||
      !
    !
  !
!
ip|ip settings of the line|k||
  netmask-format|form of network masks|k||
    bit-count|bit count|k/o||
      <cr>||||
      !
    !
    decimal|dotted decimal|k/o||
      <cr>||||
      !
    !
    hexadecimal|hexadecimal masks|k/o||
      <cr>||||
      !
    !
  !
  tcp|tcp settings|k||
    input-coalesce-threshold|input coalescing|k||
      <5-255>|packets|o||
        <cr>||||
        !
      !
    !
  !
!
