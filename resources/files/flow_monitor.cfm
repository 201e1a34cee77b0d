description|description of the monitor|k||
  line|line|lb/le/wa/o||
    <cr>||||
    !
  !
!
exporter|flow exporter|k||
  word|exporter name|k||
    <cr>||||
    !
  !
!
record|flow record|k||
  word|record name|o||
    <cr>||||
    !
  !
  netflow|predefined netflow record|k||
    line|line|lb/le/wa/o||
      <cr>||||
      !
    !
  !
  netflow-original|netflow-original|k/o||
    <cr>||||
    !
  !
!
cache|cache settings|k||
  timeout|cache timeouts|k||
    active|active timeout|k||
      id|seconds|o||
        <cr>||||
        !
      !
    !
    inactive|inactive timeout|k||
      id|seconds|o||
        <cr>||||
        !
      !
    !
    update|update timeout|k||
      id|seconds|o||
        <cr>||||
        !
      !
    !
    event|event timeout|k||
      line|line|lb/le/wa/o||
        <cr>||||
        !
      !
    !
  !
  entries|cache entries|k||
    id|entries|o||
      <cr>||||
      !
    !
  !
  type|cache type|k||
    normal|normal|o||
      <cr>||||
      !
    !
    immediate|immediate|o||
      <cr>||||
      !
    !
    permanent|permanent|o||
      <cr>||||
      !
    !
  !
!
statistics|statistics|k||
  packet|packet statistics|k||
    protocol|protocol|k||
      <cr>||||
      !
    !
    size|size|k||
      <cr>||||
      !
    !
  !
!
mode|sampler mode|k||
  deterministic|deterministic sampling|k||
    id|id|o||
      out-of|out-of|k||
        id|id|||
          <cr>||||
          !
        !
      !
    !
  !
  random|random sampling|k||
    id|id|o||
      out-of|out-of|k||
        id|id|||
          <cr>||||
          !
        !
      !
    !
  !
!
granularity|sampling granularity|k||
  connection|connection|k||
    <cr>||||
    !
  !
!
