ocsp-response|ocsp response settings|k||
  include|include the ocsp response|k||
    <cr>||||
    !
  !
  required|require an ocsp response|k||
    <cr>||||
    !
  !
!
trustpoint|trustpoint|k||
  sign|sign|k||
    word|word|o||
      <cr>||||
      !
    !
  !
  verify|verify|k||
    word|word|o||
      <cr>||||
      !
    !
  !
!
