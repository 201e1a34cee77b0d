cycle-count|probe cycles|k||
  <1-10>|cycles|o||
    <cr>||||
    !
  !
!
cycle-threshold|time between cycles|k||
  <1-1000>|milliseconds|o||
    <cr>||||
    !
  !
!
expire-supression|suppression expiry|k||
  <10-200>|seconds|o||
    <cr>||||
    !
  !
!
expire-dual-band|dual band expiry|k||
  <10-300>|seconds|o||
    <cr>||||
    !
  !
!
client-rssi|least client signal strength|k||
  <20-90>|-dBm|o||
    <cr>||||
    !
  !
!
