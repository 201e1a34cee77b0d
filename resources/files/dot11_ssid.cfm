vlan|vlan of this ssid|k||
  <1-4094>|vlan id|o||
    <cr>||||
    !
  !
!
band-select|steer dual band clients|k||
  <cr>||||
  !
!
authentication|client authentication|k||
  open|open authentication|k||
    <cr>||||
    !
    eap|with eap|k||
      word|eap method list|||
        <cr>||||
        !
      !
    !
    mac-address|with mac address|k||
      word|mac method list|||
        <cr>||||
        !
      !
    !
  !
  shared|shared key authentication|k||
    <cr>||||
    !
    eap|with eap|k||
      word|eap method list|||
        <cr>||||
        !
      !
    !
  !
  network-eap|network eap|k||
    word|eap method list|o||
      <cr>||||
      !
    !
  !
  key-management|key management|k||
    wpa|wi-fi protected access|k/o||
      <cr>||||
      !
      version|wpa version|k||
        <1-2>|version|||
          <cr>||||
          !
        !
      !
    !
    cckm|cisco centralized key management|k/o||
      <cr>||||
      !
      optional|cckm is optional|k||
        <cr>||||
        !
      !
    !
  !
!
mbssid|multiple bssid|k||
  guest-mode|announce this ssid in the beacon|k||
    <cr>||||
    !
  !
!
guest-mode|announce this ssid in the beacon|k||
  <cr>||||
  !
!
wpa-psk|pre-shared key|k||
  ascii|ascii key|k||
    id|0 plain, 7 encrypted|o||
      word|key|||
        <cr>||||
        !
      !
    !
    word|key|o||
      <cr>||||
      !
    !
  !
  hex|hexadecimal key|k||
    id|0 plain, 7 encrypted|o||
      word|key|||
        <cr>||||
        !
      !
    !
    word|key|o||
      <cr>||||
      !
    !
  !
!
max-associations|most clients|k||
  <1-255>|clients|o||
    <cr>||||
    !
  !
!
accounting|accounting of the ssid|k||
  word|method list|o||
    <cr>||||
    !
  !
!
mobility|mobility of the ssid|k||
  network-id|network id|k||
    id|network id|o||
      <cr>||||
      !
    !
  !
!
infrastructure-ssid|infrastructure ssid|k||
  <cr>||||
  !
  optional|the infrastructure ssid is optional|k||
    <cr>||||
    !
  !
!
