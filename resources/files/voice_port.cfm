description|voice port description|k||
  line|line|lb/le/wa/o||
    <cr>||||
    !
  !
!
shutdown|shut the voice port down|k||
  <cr>||||
  !
!
signal|signalling|k||
  loopStart|loop start|k/o||
    <cr>||||
    !
  !
  groundStart|ground start|k/o||
    <cr>||||
    !
  !
  wink-start|wink start|k/o||
    <cr>||||
    !
  !
  immediate|immediate start|k/o||
    <cr>||||
    !
  !
  delay-dial|delay dial|k/o||
    <cr>||||
    !
  !
  kewlstart|kewl start|k/o||
    <cr>||||
    !
  !
!
cptone|call progress tone of a country|k||
  word|country code|o||
    <cr>||||
    !
  !
!
connection|private line settings|k||
  plar|private line automatic ringdown|k||
    word|number|o||
      <cr>||||
      !
    !
  !
  trunk|trunk connection|k||
    word|number|o||
      <cr>||||
      !
    !
  !
  tie-line|tie line|k||
    word|number|o||
      <cr>||||
      !
    !
  !
!
station-id|caller id of this port|k||
  name|caller name|k||
    line|line|lb/le/wa/o||
      <cr>||||
      !
    !
  !
  number|caller number|k||
    word|number|o||
      <cr>||||
      !
    !
  !
!
timeouts|voice port timeouts|k||
  initial|before the first digit|k||
    id|seconds|o||
      <cr>||||
      !
    !
  !
  interdigit|between digits|k||
    id|seconds|o||
      <cr>||||
      !
    !
  !
  ringing|ringing timeout|k||
    id|seconds|o||
      <cr>||||
      !
    !
  !
  wait-release|wait before release|k||
    id|seconds|o||
      <cr>||||
      !
    !
  !
  call-disconnect|call disconnect|k||
    id|seconds|o||
      <cr>||||
      !
    !
  !
!
timing|signal timing|k||
  line|line|lb/le/wa||
    <cr>||||
    !
  !
!
echo-cancel|echo cancellation|k||
  line|line|lb/le/wa||
    <cr>||||
    !
  !
!
input|input settings|k||
  gain|input gain|k||
    line|line|lb/le/wa/o||
      <cr>||||
      !
    !
  !
!
output|output settings|k||
  attenuation|output attenuation|k||
    line|line|lb/le/wa/o||
      <cr>||||
      !
    !
  !
!
impedance|terminating impedance|k||
  line|line|lb/le/wa/o||
    <cr>||||
    !
  !
!
caller-id|caller id|k||
  enable|caller id on|k||
    <cr>||||
    !
  !
  line|line|lb/le/wa||
    <cr>||||
    !
  !
!
compand-type|companding|k||
  u-law|u-law companding|k/o||
    <cr>||||
    !
  !
  a-law|a-law companding|k/o||
    <cr>||||
    !
  !
!
ring|ring settings|k||
  line|line|lb/le/wa||
    <cr>||||
    !
  !
!
bearer-cap|bearer capability|k||
  line|line|lb/le/wa||
    <cr>||||
    !
  !
!
vad-extended|extended voice activity detection|k||
  <cr>||||
  !
!
playout-delay|playout delay|k||
  line|line|lb/le/wa||
    <cr>||||
    !
  !
!
translation-profile|translation profile|k||
  incoming|incoming calls|k||
    word|profile|o||
      <cr>||||
      !
    !
  !
  outgoing|outgoing calls|k||
    word|profile|o||
      <cr>||||
      !
    !
  !
!
