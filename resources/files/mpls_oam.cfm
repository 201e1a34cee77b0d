echo|echo packet settings|k||
  revision|echo packet revision|k||
    1-4|1-4|o||
      <cr>||||
      !
    !
  !
  vendor-extension|send the vendor extension|k||
    <cr>||||
    !
  !
!
