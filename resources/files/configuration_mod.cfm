pae|port access entity of 802.1x|k||
  <cr>||||
  !
!
buffers|adjust system buffer pool parameters|k||
  small|small buffers|k||
    permanent|buffers that are never given back|k||
      id|buffers|o||
        <cr>||||
        !
      !
    !
    max-free|most free buffers|k||
      id|buffers|o||
        <cr>||||
        !
      !
    !
    min-free|least free buffers|k||
      id|buffers|o||
        <cr>||||
        !
      !
    !
    initial|buffers made at start|k||
      id|buffers|o||
        <cr>||||
        !
      !
    !
  !
  middle|middle buffers|k||
    permanent|buffers that are never given back|k||
      id|buffers|o||
        <cr>||||
        !
      !
    !
    max-free|most free buffers|k||
      id|buffers|o||
        <cr>||||
        !
      !
    !
    min-free|least free buffers|k||
      id|buffers|o||
        <cr>||||
        !
      !
    !
    initial|buffers made at start|k||
      id|buffers|o||
        <cr>||||
        !
      !
    !
  !
  big|big buffers|k||
    permanent|buffers that are never given back|k||
      id|buffers|o||
        <cr>||||
        !
      !
    !
    max-free|most free buffers|k||
      id|buffers|o||
        <cr>||||
        !
      !
    !
    min-free|least free buffers|k||
      id|buffers|o||
        <cr>||||
        !
      !
    !
    initial|buffers made at start|k||
      id|buffers|o||
        <cr>||||
        !
      !
    !
  !
  verybig|very big buffers|k||
    permanent|buffers that are never given back|k||
      id|buffers|o||
        <cr>||||
        !
      !
    !
    max-free|most free buffers|k||
      id|buffers|o||
        <cr>||||
        !
      !
    !
    min-free|least free buffers|k||
      id|buffers|o||
        <cr>||||
        !
      !
    !
    initial|buffers made at start|k||
      id|buffers|o||
        <cr>||||
        !
      !
    !
  !
  large|large buffers|k||
    permanent|buffers that are never given back|k||
      id|buffers|o||
        <cr>||||
        !
      !
    !
    max-free|most free buffers|k||
      id|buffers|o||
        <cr>||||
        !
      !
    !
    min-free|least free buffers|k||
      id|buffers|o||
        <cr>||||
        !
      !
    !
    initial|buffers made at start|k||
      id|buffers|o||
        <cr>||||
        !
      !
    !
  !
  huge|huge buffers|k||
    permanent|buffers that are never given back|k||
      id|buffers|o||
        <cr>||||
        !
      !
    !
    max-free|most free buffers|k||
      id|buffers|o||
        <cr>||||
        !
      !
    !
    min-free|least free buffers|k||
      id|buffers|o||
        <cr>||||
        !
      !
    !
    initial|buffers made at start|k||
      id|buffers|o||
        <cr>||||
        !
      !
    !
    size|size of a huge buffer|k||
      <18024-100000>|bytes|o||
        <cr>||||
        !
      !
    !
  !
  header|header buffers|k||
    permanent|buffers that are never given back|k||
      id|buffers|o||
        <cr>||||
        !
      !
    !
    max-free|most free buffers|k||
      id|buffers|o||
        <cr>||||
        !
      !
    !
    min-free|least free buffers|k||
      id|buffers|o||
        <cr>||||
        !
      !
    !
    initial|buffers made at start|k||
      id|buffers|o||
        <cr>||||
        !
      !
    !
  !
  fastswitching|fast switching buffers|k||
    permanent|buffers that are never given back|k||
      id|buffers|o||
        <cr>||||
        !
      !
    !
    max-free|most free buffers|k||
      id|buffers|o||
        <cr>||||
        !
      !
    !
    min-free|least free buffers|k||
      id|buffers|o||
        <cr>||||
        !
      !
    !
    initial|buffers made at start|k||
      id|buffers|o||
        <cr>||||
        !
      !
    !
  !
  element|buffer elements|k||
    permanent|elements that are never given back|k||
      id|elements|o||
        <cr>||||
        !
      !
    !
    minimum|least elements|k||
      id|elements|o||
        <cr>||||
        !
      !
    !
  !
  tune|tuning|k||
    automatic|tune the buffers automatically|k/sb/o||
      <cr>||||
      !
    !
  !
  &interfacefile.cfm|buffers of an interface|k||
    <number>|interface number|k||
      permanent|buffers that are never given back|k||
        id|buffers|o||
          <cr>||||
          !
        !
      !
      max-free|most free buffers|k||
        id|buffers|o||
          <cr>||||
          !
        !
      !
      min-free|least free buffers|k||
        id|buffers|o||
          <cr>||||
          !
        !
      !
      initial|buffers made at start|k||
        id|buffers|o||
          <cr>||||
          !
        !
      !
    !
  !
!
cts|cisco trustsec|k||
  server|authentication servers|k||
    deadtime|time a server is held dead|k||
      <1-864000>|seconds|o||
        <cr>||||
        !
      !
    !
    test|server tests|k||
      all|all servers|k||
        enable|test the servers|k||
          <cr>||||
          !
        !
        idle-time|test interval|k||
          <1-14400>|minutes|o||
            <cr>||||
            !
          !
        !
        deadtime|time a server is held dead|k||
          <1-864000>|seconds|o||
            <cr>||||
            !
          !
        !
      !
      a.b.c.d|server address|k||
        enable|test the server|k||
          <cr>||||
          !
        !
        idle-time|test interval|k||
          <1-14400>|minutes|o||
            <cr>||||
            !
          !
        !
        deadtime|time a server is held dead|k||
          <1-864000>|seconds|o||
            <cr>||||
            !
          !
        !
      !
    !
  !
  cache|trustsec cache|k||
    enable|keep the trustsec data over a reload|k/sb/o||
      <cr>||||
      !
    !
  !
  dot1x-server-timeout|server timeout|k||
    <1-65535>|seconds|o||
      <cr>||||
      !
    !
  !
  dot1x-supp-timeout|supplicant timeout|k||
    <1-65535>|seconds|o||
      <cr>||||
      !
    !
  !
  logging|trustsec logging|k||
    verbose|verbose logging|k||
      <cr>||||
      !
    !
  !
  sxp|security group tag exchange protocol|k||
    enable|run the protocol|k/sb/o||
      <cr>||||
      !
    !
    retry|retries|k||
      period|retry period|k||
        id|seconds|o||
          <cr>||||
          !
        !
      !
    !
    reconciliation|reconciliation after a restart|k||
      period|reconciliation period|k||
        id|seconds|o||
          <cr>||||
          !
        !
      !
    !
    log|logging|k||
      binding-changes|log binding changes|k/sb/o||
        <cr>||||
        !
      !
    !
    mapping|address to tag mapping|k||
      network-map|network map|k||
        id|bindings|o||
          <cr>||||
          !
        !
      !
    !
    speaker|speaker settings|k||
      hold-time|hold time|k||
        <1-65534>|seconds|o||
          <cr>||||
          !
        !
      !
    !
    listener|listener settings|k||
      hold-time|hold time|k||
        <1-65534>|least seconds|o||
          <1-65534>|most seconds|||
            <cr>||||
            !
          !
        !
      !
    !
    node-id|node id|k||
      a.b.c.d|node address|o||
        <cr>||||
        !
      !
      id|node number|o||
        <cr>||||
        !
      !
      interface|from an interface|k||
        &interfacefile.cfm|interface type|k||
          <number>|interface number|o||
            <cr>||||
            !
          !
        !
      !
    !
    default|defaults|k||
      password|default password|k||
        line|line|lb/le/wa/o||
          <cr>||||
          !
        !
      !
      source-ip|default source address|k||
        a.b.c.d|address|o||
          <cr>||||
          !
        !
      !
    !
    connection|sxp connections|k||
      peer|peer of a connection|k||
        line|line|lb/le/wa||
          <cr>||||
          !
        !
      !
    !
  !
  role-based|role-based access control|k||
    enforcement|enforce the rules|k||
      <cr>||||
      !
    !
    sgt-map|address to tag binding|k||
      a.b.c.d|address|k||
        sgt|security group tag|k||
          <2-65519>|tag|o||
            <cr>||||
            !
          !
        !
      !
    !
    permissions|permissions between tags|k||
      line|line|lb/le/wa||
        <cr>||||
        !
      !
    !
  !
  authorization|authorization of trustsec|k||
    list|method list|k||
      word|list|o||
        <cr>||||
        !
      !
    !
  !
!
eou|eap over udp|k||
  revalidate|revalidate the clients|k||
    <cr>||||
    !
  !
  max-retry|most retries|k||
    <1-3>|retries|o||
      <cr>||||
      !
    !
  !
  ratelimit|rate limit|k||
    id|sessions|o||
      <cr>||||
      !
    !
  !
  port|udp port|k||
    <1-65535>|port|o||
      <cr>||||
      !
    !
  !
  allow|what is allowed|k||
    ip-station-id|ip address as the station id|k/sb/o||
      <cr>||||
      !
    !
    clientless|clientless hosts|k/sb/o||
      <cr>||||
      !
    !
  !
  timeout|timers|k||
    hold-period|hold period|k||
      <60-86400>|seconds|o||
        <cr>||||
        !
      !
    !
    status-query|status query|k||
      <10-1800>|seconds|o||
        <cr>||||
        !
      !
    !
    retransmit|retransmission|k||
      <1-60>|seconds|o||
        <cr>||||
        !
      !
    !
    aaa|aaa timeout|k||
      id|seconds|o||
        <cr>||||
        !
      !
    !
    revalidation|revalidation timer|k||
      <5-86400>|seconds|o||
        <cr>||||
        !
      !
    !
  !
  logging|log eou events|k||
    <cr>||||
    !
  !
  default|defaults|k||
    <cr>||||
    !
  !
!
ipc|inter-process communication|k||
  holdq|hold queue|k||
    threshold|thresholds|k||
      upper|upper threshold|k||
        id|messages|o||
          <cr>||||
          !
        !
      !
      lower|lower threshold|k||
        id|messages|o||
          <cr>||||
          !
        !
      !
    !
  !
  header-cache|header cache|k||
    permanent|permanent headers|k||
      id|headers|o||
        id|most headers|||
          <cr>||||
          !
        !
      !
    !
  !
  buffers|ipc buffers|k||
    max-free|most free buffers|k||
      id|buffers|o||
        <cr>||||
        !
      !
    !
    min-free|least free buffers|k||
      id|buffers|o||
        <cr>||||
        !
      !
    !
    permanent|permanent buffers|k||
      id|buffers|o||
        <cr>||||
        !
      !
    !
  !
  zone|ipc zones|k||
    line|line|lb/le/wa||
      <cr>||||
      !
    !
  !
!
^c|end of a banner|k||
  <cr>||||
  !
!
hostname|set system's network name|k/n||
  word|this system's network name|o||
    <cr>||||
    !
  !
!
interface|select an interface to configure|k||
  &interfacefile.cfm|interface type|k||
    <number>|interface number|k||
      <cr>||||
      !
      point-to-point|point-to-point subinterface|k||
        <cr>||||@(config-subif)# interface.cfm
        !
      !
      multipoint|multipoint subinterface|k||
        <cr>||||@(config-subif)# interface.cfm
        !
      !
      type|interface type|k||
        word|word|k||
          <cr>||||@(config-if)# interface.cfm
          !
        !
      !
    !
  !
  &interfacefile.cfm|interface type|k||
    <number>|interface number|k||
      <cr>||||@(config-if)# interface.cfm
      !
    !
  !
  range|interface range|k||
    line|line|lb/le/wa/k||
      <cr>||||@(config-if-range)# interface.cfm
      !
    !
  !
!
default|set a command to its defaults|k||
  interface|every setting of an interface back to its default|k||
    &interfacefile.cfm|interface type|k||
      <number>|interface number|k||
        <cr>||||
        !
      !
    !
    range|interface range|k||
      line|line|lb/le/wa/k||
        <cr>||||
        !
      !
    !
  !
!
version|version of the configuration|k||
  <value>|value|o||
    <cr>||||
    !
  !
!
boot-start-marker|boot marker|k||
  <cr>||||
  !
!
boot-end-marker|boot marker|k||
  <cr>||||
  !
!
boot|boot commands|k||
  system|system image|k||
    line|text|lb/le/wa||
      <cr>||||
      !
    !
  !
  host|host|k||
    line|text|lb/le/wa||
      <cr>||||
      !
    !
  !
  config|config|k||
    line|text|lb/le/wa||
      <cr>||||
      !
    !
  !
  nvram|nvram|k||
    line|text|lb/le/wa||
      <cr>||||
      !
    !
  !
!
end|exit configuration mode|k||
  <cr>||||
  !
!
exit|exit configuration mode|k||
  <cr>||||
  !
!
service|modify use of network based services|k||
  timestamps|timestamp debug/log messages|k||
    debug|debug|k||
      datetime|datetime|o||
        <cr>||||
        !
        msec|msec|o||
          <cr>||||
          !
          localtime|localtime|o||
            <cr>||||
            !
            show-timezone|show-timezone|o||
              <cr>||||
              !
              year|year|o||
                <cr>||||
                !
              !
            !
          !
          show-timezone|show-timezone|o||
            <cr>||||
            !
          !
          year|year|o||
            <cr>||||
            !
          !
        !
        localtime|localtime|o||
          <cr>||||
          !
          show-timezone|show-timezone|o||
            <cr>||||
            !
            year|year|o||
              <cr>||||
              !
            !
          !
          year|year|o||
            <cr>||||
            !
          !
          msec|msec|o||
            <cr>||||
            !
            show-timezone|show-timezone|o||
              <cr>||||
              !
            !
          !
        !
        show-timezone|show-timezone|o||
          <cr>||||
          !
          year|year|o||
            <cr>||||
            !
          !
        !
        year|year|o||
          <cr>||||
          !
        !
      !
      uptime|uptime|o||
        <cr>||||
        !
      !
    !
    log|log|k||
      datetime|datetime|o||
        <cr>||||
        !
        msec|msec|o||
          <cr>||||
          !
          localtime|localtime|o||
            <cr>||||
            !
            show-timezone|show-timezone|o||
              <cr>||||
              !
              year|year|o||
                <cr>||||
                !
              !
            !
          !
          show-timezone|show-timezone|o||
            <cr>||||
            !
          !
          year|year|o||
            <cr>||||
            !
          !
        !
        localtime|localtime|o||
          <cr>||||
          !
          show-timezone|show-timezone|o||
            <cr>||||
            !
            year|year|o||
              <cr>||||
              !
            !
          !
          year|year|o||
            <cr>||||
            !
          !
          msec|msec|o||
            <cr>||||
            !
            show-timezone|show-timezone|o||
              <cr>||||
              !
            !
          !
        !
        show-timezone|show-timezone|o||
          <cr>||||
          !
          year|year|o||
            <cr>||||
            !
          !
        !
        year|year|o||
          <cr>||||
          !
        !
      !
      uptime|uptime|o||
        <cr>||||
        !
      !
    !
  !
  password-encryption|password-encryption|k/sb/o||
    <cr>||||
    !
  !
  pad|pad|k||
    <cr>||sn||
    !
    to-xot|accept outgoing pad connections over x.25 over tcp|k||
      <cr>||||
      !
    !
    from-xot|accept xot to pad connections|k||
      <cr>||||
      !
    !
    cmns|enable pad over cmns connections|k||
      <cr>||||
      !
    !
  !
  config|config|k/sn||
    <cr>||||
    !
  !
  log|log settings|k||
    backtrace|provide backtrace information|k||
      <cr>||||
      !
    !
  !
  exec-callback|enable exec callback|k||
    <cr>||||
    !
  !
  slave-coredump|core dump of the standby processor|k||
    <cr>||||
    !
  !
  telnet-zeroidle|set the tcp window to zero when the vty is idle|k||
    <cr>||||
    !
  !
  exec-wait|delay the exec startup on noisy lines|k||
    <cr>||||
    !
  !
  scripting|enable the scripting prompt|k||
    <cr>||||
    !
  !
  old-slip-prompts|allow old-style slip prompts|k||
    <cr>||||
    !
  !
  pt-vty-logging|log the protocol translation vty connections|k||
    <cr>||||
    !
  !
  disable-ip-fast-frag|disable ip fast fragmentation|k||
    <cr>||||
    !
  !
  tcp-keepalives-in|tcp-keepalives-in|k||
    <cr>||||
    !
  !
  tcp-keepalives-out|tcp-keepalives-out|k||
    <cr>||||
    !
  !
  tcp-small-servers|tcp-small-servers|k||
    <cr>||||
    !
  !
  udp-small-servers|udp-small-servers|k||
    <cr>||||
    !
  !
  nagle|nagle|k||
    <cr>||||
    !
  !
  internal|internal|k||
    <cr>||||
    !
  !
  compress-config|compress-config|k||
    <cr>||||
    !
  !
  sequence-numbers|sequence-numbers|k||
    <cr>||||
    !
  !
  call-home|call-home|k||
    <cr>||||
    !
  !
  dhcp|dhcp|k/sn||
    <cr>||||
    !
  !
  slave-log|slave-log|k||
    <cr>||||
    !
  !
  finger|finger|k||
    <cr>||||
    !
  !
  unsupported-transceiver|unsupported-transceiver|k||
    <cr>||||
    !
  !
  linenumber|linenumber|k||
    <cr>||||
    !
  !
  counters|counters|k||
    max|max|k||
      age|age|k||
        id|id|||
          <cr>||||
          !
        !
      !
    !
  !
  prompt|prompt|k||
    config|config|k/sn||
      <cr>||||
      !
    !
  !
  password-recovery|password-recovery|k/sn||
    <cr>||||
    !
  !
!
control-plane|control plane configuration|k||
  <cr>||||@(config-cp)# control_plane.cfm
  !
  host|host|k||
    <cr>||||@(config-cp-host)# control_plane.cfm
    !
  !
!
redundancy|redundancy configuration|k||
  <cr>||||@(config-red)# redundancy.cfm
  !
!
multilink|ppp multilink|k||
  virtual-template|virtual template for multilink bundles|k||
    0-25|0-25|o||
      <cr>||||
      !
    !
  !
  bundle-name|bundle-name|k||
    authenticated|authenticated|k||
      <cr>||||
      !
    !
    endpoint|endpoint|k||
      <cr>||||
      !
    !
    both|both|k||
      <cr>||||
      !
    !
  !
!
username|establish user name authentication|k||
  word|user name|k||
    <cr>||||
    !
    privilege|privilege|k||
      id|id|o||
        password|password|k||
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
        secret|secret|k||
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
        view|set view name|k||
          word|view name|||
            <cr>||||
            !
            password|specify the password for the user|k||
              id|encryption type|||
                line|the password|lb/le/wa/o||
                  <cr>||||
                  !
                !
              !
              line|the password|lb/le/wa/o||
                <cr>||||
                !
              !
            !
            secret|specify the secret for the user|k||
              id|encryption type|||
                line|the secret|lb/le/wa/o||
                  <cr>||||
                  !
                !
              !
              line|the secret|lb/le/wa/o||
                <cr>||||
                !
              !
            !
            nopassword|no password is required|k||
              <cr>||||
              !
            !
          !
        !
        algorithm-type|encryption algorithm for the secret|k||
          word|md5, sha256 or scrypt|||
            secret|specify the secret for the user|k||
              line|line|lb/le/wa/o||
                <cr>||||
                !
              !
            !
          !
        !
      !
      line|text|lb/le/wa||
        <cr>||||
        !
      !
    !
    password|password|k||
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
    secret|secret|k||
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
    nopassword|nopassword|k||
      <cr>||||
      !
    !
    view|set view name|k||
      word|view name|||
        <cr>||||
        !
        password|specify the password for the user|k||
          id|encryption type|||
            line|the password|lb/le/wa/o||
              <cr>||||
              !
            !
          !
          line|the password|lb/le/wa/o||
            <cr>||||
            !
          !
        !
        secret|specify the secret for the user|k||
          id|encryption type|||
            line|the secret|lb/le/wa/o||
              <cr>||||
              !
            !
          !
          line|the secret|lb/le/wa/o||
            <cr>||||
            !
          !
        !
        nopassword|no password is required|k||
          <cr>||||
          !
        !
      !
    !
    autocommand|autocommand|k||
      line|text|lb/le/wa||
        <cr>||||
        !
      !
    !
    algorithm-type|encryption algorithm for the secret|k||
      word|md5, sha256 or scrypt|||
        secret|specify the secret for the user|k||
          id|id|||
            line|line|lb/le/wa||
              <cr>||||
              !
            !
          !
          line|line|lb/le/wa||
            <cr>||||
            !
          !
        !
      !
    !
  !
!
enable|modify enable password parameters|k||
  secret|secret|k||
    level|level|k||
      id|id|||
        id|id|||
          line|line|lb/le/wa/o||
            <cr>||||
            !
          !
        !
      !
    !
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
  password|password|k||
    level|level|k||
      id|id|||
        id|id|||
          line|line|lb/le/wa/o||
            <cr>||||
            !
          !
        !
      !
    !
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
  algorithm-type|encryption algorithm for the secret|k||
    word|md5, sha256 or scrypt|||
      secret|assign the privileged level secret|k||
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
    !
  !
!
banner|define a login banner|k||
  motd|motd|k/n||
    line|line|lb/le/wa/o||
      <cr>||||
      !
    !
  !
  login|login|k/n||
    line|line|lb/le/wa/o||
      <cr>||||
      !
    !
  !
  exec|exec|k/n||
    line|line|lb/le/wa/o||
      <cr>||||
      !
    !
  !
  incoming|incoming|k/n||
    line|line|lb/le/wa/o||
      <cr>||||
      !
    !
  !
  slip-ppp|slip-ppp|k/n||
    line|line|lb/le/wa/o||
      <cr>||||
      !
    !
  !
  prompt-timeout|prompt-timeout|k/n||
    line|line|lb/le/wa/o||
      <cr>||||
      !
    !
  !
!
&linefile.cfm|configure a terminal line|k||
  con|primary terminal line|k||
    id|id|k||
      <cr>||||@(config-line)# line.cfm
      !
    !
  !
  vty|virtual terminal|k||
    id|id|k||
      <cr>||||@(config-line)# line.cfm
      !
      id|id|k||
        <cr>||||@(config-line)# line.cfm
        !
      !
    !
  !
  aux|auxiliary line|k||
    id|id|k||
      <cr>||||@(config-line)# line.cfm
      !
    !
  !
  console|console|k||
    id|id|k||
      <cr>||||@(config-line)# line.cfm
      !
    !
  !
  tty|tty|k||
    id|id|k||
      <cr>||||@(config-line)# line.cfm
      !
      id|id|k||
        <cr>||||@(config-line)# line.cfm
        !
      !
    !
  !
  id|first line number|k||
    <cr>||||@(config-line)# line.cfm
    !
    id|last line number|k||
      <cr>||||@(config-line)# line.cfm
      !
    !
  !
!
router|enable a routing process|k||
  bgp|border gateway protocol|k||
    1-4294967295|Autonomous system number|k||
      <cr>||||@(config-router)# router_bgp.cfm
      !
    !
    1.0-65535.65535|Autonomous system number|k||
      <cr>||||@(config-router)# router_bgp.cfm
      !
    !
  !
  ospf|open shortest path first|k||
    1-65535|Process ID|k||
      <cr>||||@(config-router)# router_ospf.cfm
      !
      vrf|vrf|k||
        word|word|k||
          <cr>||||@(config-router)# router_ospf.cfm
          !
        !
      !
    !
  !
  ospfv3|ospf version 3|k||
    1-65535|Process ID|k||
      <cr>||||@(config-router)# router_ospf.cfm
      !
    !
  !
  eigrp|enhanced interior gateway routing protocol|k||
    1-65535|Autonomous System|k||
      <cr>||||@(config-router)# router_eigrp.cfm
      !
    !
    word|EIGRP Virtual-Instance Name|k||
      <cr>||||@(config-router)# router_eigrp.cfm
      !
    !
  !
  rip|routing information protocol|k||
    <cr>||||@(config-router)# router_rip.cfm
    !
  !
  isis|intermediate system to intermediate system|k||
    <cr>||||@(config-router)# router_isis.cfm
    !
    word|word|k||
      <cr>||||@(config-router)# router_isis.cfm
      !
    !
  !
  lisp|lisp|k||
    <cr>||||@(config-router-lisp)# router_rip.cfm
    !
  !
!
access-list|add an access list entry|k||
  1-99|IP standard access list|k/n||
    permit|permit|||&acl_std_entry.cfm
    !
    deny|deny|||&acl_std_entry.cfm
    !
    remark|access list entry comment|||
      <cr>||||
      !
      line|text|lb/le/wa||
        <cr>||||
        !
      !
    !
  !
  1300-1999|IP standard access list (expanded range)|k/n||
    permit|permit|||&acl_std_entry.cfm
    !
    deny|deny|||&acl_std_entry.cfm
    !
    remark|access list entry comment|||
      <cr>||||
      !
      line|text|lb/le/wa||
        <cr>||||
        !
      !
    !
  !
  100-199|IP extended access list|k/n||
    permit|permit|||&acl_ext_entry.cfm
    !
    deny|deny|||&acl_ext_entry.cfm
    !
    dynamic|dynamic|||
      word|word|k||
        permit|permit|||&acl_ext_entry.cfm
        !
      !
    !
    remark|access list entry comment|||
      <cr>||||
      !
      line|text|lb/le/wa||
        <cr>||||
        !
      !
    !
  !
  700-799|48-bit MAC address access list|k/n||
    permit|specify addresses to forward|||
      h.h.h|48-bit mac address|||
        h.h.h|mask of bits to ignore|||
          <cr>||||
          !
        !
      !
    !
    deny|specify addresses to drop|||
      h.h.h|48-bit mac address|||
        h.h.h|mask of bits to ignore|||
          <cr>||||
          !
        !
      !
    !
  !
  2000-2699|IP extended access list (expanded range)|k/n||
    permit|permit|||&acl_ext_entry.cfm
    !
    deny|deny|||&acl_ext_entry.cfm
    !
    remark|access list entry comment|||
      <cr>||||
      !
      line|text|lb/le/wa||
        <cr>||||
        !
      !
    !
  !
!
vlan|vlan commands|k||
  configuration|Vlan feature configuration mode|k||
    list/1-4094|VLAN IDs 1-4094|k||
      <cr>||||@(config-vlan-config)# vlan_config.cfm
      !
    !
  !
  list/1-4094|ISL VLAN IDs 1-4094|k||
    <cr>||||@(config-vlan)# vlan.cfm
    !
  !
  internal|internal VLAN|k||
    allocation|allocation|k||
      policy|policy|k||
        ascending|ascending|k||
          <cr>||||
          !
        !
        descending|descending|k||
          <cr>||||
          !
        !
      !
    !
  !
  access-log|Configure VACL logging|k||
    ratelimit|ratelimit|k||
      id|id|||
        <cr>||||
        !
      !
    !
    maxflow|maxflow|k||
      id|id|||
        <cr>||||
        !
      !
    !
    threshold|threshold|k||
      id|id|||
        <cr>||||
        !
      !
    !
  !
  access-map|Create vlan access-map or enter vlan access-map command mode|k||
    word|word|k||
      <cr>||||@(config-access-map)# vlan.cfm
      !
      id|id|k||
        <cr>||||@(config-access-map)# vlan.cfm
        !
      !
    !
  !
  filter|Apply a VLAN Map|k||
    word|word|k||
      vlan-list|vlan-list|k||
        <vlan>|vlan|||
          <cr>||||
          !
        !
      !
    !
  !
  dot1q|dot1q parameters|k||
    tag|tag|k||
      native|native|k||
        <cr>||||
        !
      !
    !
  !
!
spanning-tree|spanning tree subsystem|k||
  mode|mode|k||
    pvst|pvst|o||
      <cr>||||
      !
    !
    rapid-pvst|rapid-pvst|o||
      <cr>||||
      !
    !
    mst|mst|o||
      <cr>||||
      !
    !
  !
  extend|extend|k||
    system-id|system-id|k||
      <cr>||||
      !
    !
  !
  portfast|portfast|k||
    default|default|k||
      <cr>||||
      !
    !
    edge|edge|k||
      default|default|k||
        <cr>||||
        !
      !
      bpduguard|bpduguard|k||
        default|default|k||
          <cr>||||
          !
        !
      !
      bpdufilter|bpdufilter|k||
        default|default|k||
          <cr>||||
          !
        !
      !
    !
    bpduguard|bpduguard|k||
      default|default|k||
        <cr>||||
        !
      !
    !
    bpdufilter|bpdufilter|k||
      default|default|k||
        <cr>||||
        !
      !
    !
  !
  vlan|vlan|k||
    list/1-4094|vlan id list|k||
      <cr>||||
      !
      priority|priority|k||
        0-61440|bridge priority in increments of 4096|o||
          <cr>||||
          !
        !
      !
      forward-time|forward-time|k||
        id|id|||
          <cr>||||
          !
        !
      !
      hello-time|hello-time|k||
        id|id|||
          <cr>||||
          !
        !
      !
      max-age|max-age|k||
        id|id|||
          <cr>||||
          !
        !
      !
      root|root|k||
        primary|primary|k||
          <cr>||||
          !
        !
        secondary|secondary|k||
          <cr>||||
          !
        !
      !
    !
  !
  loopguard|loopguard|k||
    default|default|k||
      <cr>||||
      !
    !
  !
  etherchannel|etherchannel|k||
    guard|guard|k||
      misconfig|misconfig|k||
        <cr>||||
        !
      !
    !
  !
  logging|logging|k||
    <cr>||||
    !
  !
  optimize|optimize|k||
    bpdu|bpdu|k||
      transmission|transmission|k||
        <cr>||||
        !
      !
    !
  !
  backbonefast|backbonefast|k||
    <cr>||||
    !
  !
  uplinkfast|uplinkfast|k||
    <cr>||||
    !
  !
  pathcost|pathcost|k||
    method|method|k||
      long|long|k||
        <cr>||||
        !
      !
      short|short|k||
        <cr>||||
        !
      !
    !
  !
  mst|multiple spanning tree|k||
    configuration|enter mst configuration|k||
      <cr>||||@(config-mst)# vlan.cfm
      !
    !
    <instances>|mst instance list, such as 0-1 or 2,4|k||
      priority|bridge priority|k||
        id|priority in steps of 4096|o||
          <cr>||||
          !
        !
      !
      root|root switch|k||
        primary|primary|k/o||
          <cr>||||
          !
        !
        secondary|secondary|k/o||
          <cr>||||
          !
        !
      !
    !
    hello-time|hello interval|k||
      id|seconds|o||
        <cr>||||
        !
      !
    !
    forward-time|forward delay|k||
      id|seconds|o||
        <cr>||||
        !
      !
    !
    max-age|maximum age|k||
      id|seconds|o||
        <cr>||||
        !
      !
    !
    max-hops|maximum hops|k||
      id|hops|o||
        <cr>||||
        !
      !
    !
    simulate|simulate pvst|k||
      pvst|pvst|k||
        <cr>||||
        !
        global|global|k||
          <cr>||||
          !
        !
      !
    !
  !
!
route-map|create route-map or enter route-map command mode|k||
  word|Route map tag|k||
    <cr>||||@(config-route-map)# route_map.cfm
    !
    permit|Route map permits set operations|o||
      <cr>||||@(config-route-map)# route_map.cfm
      !
      0-65535|Sequence to insert to/delete from existing route-map entry|k||
        <cr>||||@(config-route-map)# route_map.cfm
        !
      !
    !
    deny|Route map denies set operations|o||
      <cr>||||@(config-route-map)# route_map.cfm
      !
      0-65535|Sequence to insert to/delete from existing route-map entry|k||
        <cr>||||@(config-route-map)# route_map.cfm
        !
      !
    !
    0-65535|Sequence to insert to/delete from existing route-map entry|k||
      <cr>||||@(config-route-map)# route_map.cfm
      !
    !
  !
!
control-plane-policing|control plane policing settings|k||
  <cr>||||
  !
!
platform|platform configuration|k||
  console|console selection|k||
    auto|automatic console selection|o||
      <cr>||||
      !
    !
    serial|serial console|o||
      <cr>||||
      !
    !
    virtual|virtual console|o||
      <cr>||||
      !
    !
  !
  punt-keepalive|punt keepalive settings|k||
    disable-kernel-core|do not write a kernel core on a keepalive failure|k/o/sb||
      <cr>||||
      !
    !
    ignore-fault|ignore keepalive faults|k/o/sb||
      <cr>||||
      !
    !
  !
  qfp|quantum flow processor|k||
    utilization|utilization settings|k||
      monitor|monitor utilization|k||
        load|load threshold|k||
          id|load in percent|o||
            <cr>||||
            !
          !
        !
      !
    !
  !
  line|other platform setting|lb/le/wa/k||
    <cr>||||
    !
  !
!
license|license configuration|k||
  udi|unique device identifier|k||
    pid|product identifier|k||
      word|product identifier|||
        sn|serial number|k||
          word|serial number|o||
            <cr>||||
            !
          !
        !
      !
    !
  !
  boot|boot license settings|k||
    level|technology package level|k||
      word|level name|k||
        <cr>||||
        !
        addon|add-on level|k||
          word|add-on level name|o||
            <cr>||||
            !
          !
        !
      !
    !
    line|line|lb/le/wa||
      <cr>||||
      !
    !
  !
  smart|smart licensing|k||
    line|line|lb/le/wa||
      <cr>||||
      !
    !
  !
  accept|accept an agreement|k||
    line|line|lb/le/wa||
      <cr>||||
      !
    !
  !
  feature|feature license|k||
    line|line|lb/le/wa||
      <cr>||||
      !
    !
  !
  call-home|call-home licensing|k||
    line|line|lb/le/wa||
      <cr>||||
      !
    !
  !
!
upgrade|upgrade commands|k||
  fpd|fpd|k||
    auto|auto|k||
      <cr>||||
      !
    !
    path|path|k||
      line|text|lb/le/wa||
        <cr>||||
        !
      !
    !
  !
!
subscriber|subscriber configuration|k||
  templating|subscriber templates|k||
    <cr>||||
    !
  !
  authorization|subscriber authorization|k||
    enable|enable|k||
      <cr>||||
      !
    !
  !
  aaa|subscriber aaa|k||
    line|line|lb/le/wa||
      <cr>||||
      !
    !
  !
  redundancy|subscriber redundancy|k||
    line|line|lb/le/wa||
      <cr>||||
      !
    !
  !
  service|subscriber service|k||
    line|line|lb/le/wa||
      <cr>||||
      !
    !
  !
  policy|subscriber policy|k||
    line|line|lb/le/wa||
      <cr>||||
      !
    !
  !
  feature|subscriber feature|k||
    line|line|lb/le/wa||
      <cr>||||
      !
    !
  !
  accounting|subscriber accounting|k||
    line|line|lb/le/wa||
      <cr>||||
      !
    !
  !
!
virtual-service|virtual service|k||
  word|word|k||
    <cr>||||@(config-virt-serv)# generic.cfm
    !
  !
!
archive|archive configuration|k||
  <cr>||||@(config-archive)# archive.cfm
  !
!
cdp|global cdp configuration|k||
  tlv|cdp type-length-values|k||
    app|app|k||
      <cr>||||
      !
    !
    location|location|k||
      <cr>||||
      !
    !
    server-location|server-location|k||
      <cr>||||
      !
    !
  !
  run|run|k/sn||
    <cr>||||
    !
  !
  advertise-v2|advertise-v2|k/sn||
    <cr>||||
    !
  !
  timer|timer|k||
    id|id|o||
      <cr>||||
      !
    !
  !
  holdtime|holdtime|k||
    id|id|o||
      <cr>||||
      !
    !
  !
  log|log|k||
    mismatch|mismatch|k||
      duplex|duplex|k||
        <cr>||||
        !
      !
    !
  !
!
lldp|global lldp configuration|k||
  run|run|k||
    <cr>||||
    !
  !
  timer|timer|k||
    id|id|||
      <cr>||||
      !
    !
  !
  holdtime|holdtime|k||
    id|id|||
      <cr>||||
      !
    !
  !
  reinit|reinit|k||
    id|id|||
      <cr>||||
      !
    !
  !
!
diagnostic|diagnostic configuration|k||
  bootup|bootup|k||
    level|level|k||
      minimal|minimal|k||
        <cr>||||
        !
      !
      complete|complete|k||
        <cr>||||
        !
      !
      bypass|bypass|k||
        <cr>||||
        !
      !
    !
  !
  monitor|monitor|k||
    line|line|lb/le/wa||
      <cr>||||
      !
    !
  !
!
login|login options|k||
  block-for|block-for|k||
    id|id|o||
      attempts|attempts|o||
        id|id|o||
          within|within|o||
            id|id|o||
              <cr>||||
              !
            !
          !
        !
      !
    !
  !
  on-success|on-success|k||
    log|log|k||
      <cr>||||
      !
      every|every|k||
        id|id|||
          <cr>||||
          !
        !
      !
    !
  !
  on-failure|on-failure|k||
    log|log|k||
      <cr>||||
      !
      every|every|k||
        id|id|||
          <cr>||||
          !
        !
      !
    !
  !
  delay|delay|k||
    id|id|||
      <cr>||||
      !
    !
  !
  quiet-mode|quiet-mode|k||
    access-class|access-class|k||
      word|word|||
        <cr>||||
        !
      !
    !
  !
!
memory|memory configuration|k||
  statistics|statistics|k||
    history|history|k||
      table|table|k||
        <cr>||||
        !
        id|number of entries|o||
          <cr>||||
          !
        !
      !
    !
  !
  free|free|k||
    low-watermark|low-watermark|k||
      processor|processor|k||
        id|id|||
          <cr>||||
          !
        !
      !
      io|io|k||
        id|id|||
          <cr>||||
          !
        !
      !
    !
  !
  reserve|reserve|k||
    critical|critical|k||
      id|id|||
        <cr>||||
        !
      !
    !
  !
  lite|lite|k||
    <cr>||||
    !
  !
  check-interval|free memory check interval|k||
    id|seconds|o||
      <cr>||||
      !
    !
  !
  validate-checksum|text segment checksum validation|k||
    id|seconds|o||
      <cr>||||
      !
    !
  !
  chunk|chunk manager settings|k||
    siblings|siblings|k||
      threshold|threshold|k||
        id|id|o||
          <cr>||||
          !
        !
      !
    !
  !
!
memory-size|adjust memory size by percentage|k||
  iomem|iomem|k||
    id|id|||
      <cr>||||
      !
    !
  !
!
netconf-yang|netconf yang|k||
  <cr>||||
  !
  line|line|lb/le/wa||
    <cr>||||
    !
  !
!
restconf|enable restconf|k||
  <cr>||||
  !
!
netconf|configure netconf|k||
  line|line|lb/le/wa||
    <cr>||||
    !
  !
!
gatekeeper|gatekeeper configuration|k||
  <cr>||||@(config-gk)# gatekeeper.cfm
  !
!
track|object tracking|k||
  id|id|k/n||
    ip|ip|k||
      sla|sla|k||
        id|id|k||
          <cr>||||@(config-track)# track.cfm
          !
          reachability|reachability|k||
            <cr>||||@(config-track)# track.cfm
            !
          !
          state|state|k||
            <cr>||||@(config-track)# track.cfm
            !
          !
        !
      !
      route|route|k||
        a.b.c.d/<1-32>|a.b.c.d/<1-32|k||
          reachability|reachability|k||
            <cr>||||@(config-track)# track.cfm
            !
          !
          metric|metric|k||
            threshold|threshold|k||
              <cr>||||@(config-track)# track.cfm
              !
            !
          !
        !
        a.b.c.d|a.b.c.d|k||
          a.b.c.d|a.b.c.d|k||
            reachability|reachability|k||
              <cr>||||@(config-track)# track.cfm
              !
            !
            metric|metric|k||
              threshold|threshold|k||
                <cr>||||@(config-track)# track.cfm
                !
              !
            !
          !
        !
      !
    !
    interface|interface|k||
      &interfacefile.cfm|interface type|k||
        <number>|interface number|k||
          <cr>||||
          !
          line-protocol|line-protocol|k||
            <cr>||||@(config-track)# track.cfm
            !
          !
          ip|ip|k||
            routing|routing|k||
              <cr>||||@(config-track)# track.cfm
              !
            !
          !
        !
      !
    !
    list|list|k||
      boolean|boolean|k||
        and|and|k||
          <cr>||||@(config-track)# track.cfm
          !
        !
        or|or|k||
          <cr>||||@(config-track)# track.cfm
          !
        !
      !
      threshold|threshold|k||
        weight|weight|k||
          <cr>||||@(config-track)# track.cfm
          !
        !
        percentage|percentage|k||
          <cr>||||@(config-track)# track.cfm
          !
        !
      !
    !
    rtr|rtr|k||
      id|id|k||
        <cr>||||@(config-track)# track.cfm
        !
        reachability|reachability|k||
          <cr>||||@(config-track)# track.cfm
          !
        !
        state|state|k||
          <cr>||||@(config-track)# track.cfm
          !
        !
      !
    !
    stub-object|stub-object|k||
      <cr>||||@(config-track)# track.cfm
      !
    !
  !
  timer|polling interval timers|k||
    interface|interface polling|k||
      id|seconds|o||
        <cr>||||
        !
      !
      msec|milliseconds|k||
        id|milliseconds|o||
          <cr>||||
          !
        !
      !
    !
    ip|ip polling|k||
      route|route polling|k||
        id|seconds|o||
          <cr>||||
          !
        !
        msec|milliseconds|k||
          id|milliseconds|o||
            <cr>||||
            !
          !
        !
      !
      sla|ip sla polling|k||
        id|seconds|o||
          <cr>||||
          !
        !
        msec|milliseconds|k||
          id|milliseconds|o||
            <cr>||||
            !
          !
        !
      !
    !
    ipv6|ipv6 polling|k||
      route|route polling|k||
        id|seconds|o||
          <cr>||||
          !
        !
        msec|milliseconds|k||
          id|milliseconds|o||
            <cr>||||
            !
          !
        !
      !
    !
    list|list polling|k||
      id|seconds|o||
        <cr>||||
        !
      !
      msec|milliseconds|k||
        id|milliseconds|o||
          <cr>||||
          !
        !
      !
    !
  !
!
clock|configure time-of-day clock|k||
  timezone|timezone|k||
    word|word|o||
      +/-<metric>|+/-<metric|||
        <cr>||||
        !
        id|id|||
          <cr>||||
          !
        !
      !
      id|id|||
        <cr>||||
        !
        id|id|||
          <cr>||||
          !
        !
      !
    !
  !
  summer-time|summer-time|k||
    word|word|o||
      recurring|recurring|k||
        <cr>||||
        !
        line|line|lb/le/wa||
          <cr>||||
          !
        !
      !
      date|date|k||
        line|line|lb/le/wa||
          <cr>||||
          !
        !
      !
    !
  !
  calendar-valid|calendar-valid|k||
    <cr>||||
    !
  !
!
security|security commands|k||
  passwords|passwords|k||
    min-length|min-length|k||
      id|id|o||
        <cr>||||
        !
      !
    !
  !
  authentication|authentication|k||
    failure|failure|k||
      rate|rate|k||
        id|id|||
          log|log|k||
            <cr>||||
            !
          !
        !
      !
    !
  !
  line|line|lb/le/wa||
    <cr>||||
    !
  !
!
spd|selective packet discard|k||
  headroom|headroom|k||
    id|id|o||
      <cr>||||
      !
    !
  !
  extended-headroom|extended headroom for priority packets|k||
    id|id|o||
      <cr>||||
      !
    !
  !
  enable|enable|k||
    <cr>||||
    !
  !
  mode|mode|k||
    aggressive|aggressive|k||
      <cr>||||
      !
    !
  !
!
alias|create command alias|k||
  atm-vc-config|atm virtual circuit mode|k||
    word|word|k||
      line|line|lb/le/wa||
        <cr>||||
        !
      !
    !
  !
  exec|exec|k||
    word|word|k||
      line|text|lb/le/wa||
        <cr>||||
        !
      !
    !
  !
  configure|configure|k||
    word|word|k||
      line|text|lb/le/wa||
        <cr>||||
        !
      !
    !
  !
  interface|interface|k||
    word|word|k||
      line|text|lb/le/wa||
        <cr>||||
        !
      !
    !
  !
!
dialer-list|dialer list|k||
  id|id|k||
    protocol|protocol|k||
      word|word|k||
        permit|permit|k||
          <cr>||||
          !
        !
        deny|deny|k||
          <cr>||||
          !
        !
        list|list|k||
          id|id|||
            <cr>||||
            !
          !
        !
      !
    !
  !
!
dialer|dialer watch and pool configuration|k||
  watch-list|watch-list|k||
    line|line|lb/le/wa||
      <cr>||||
      !
    !
  !
!
domain|domain configuration|k||
  word|word|k||
    <cr>||||@(config-domain)# generic.cfm
    !
    line|line|lb/le/wa||
      <cr>||||@(config-domain)# generic.cfm
      !
    !
  !
!
vpdn|virtual private dialup network|k||
  enable|enable|k||
    <cr>||||
    !
  !
  logging|logging|k||
    <cr>||||
    !
  !
  group|group|k||
    word|word|k||
      <cr>||||@(config-vpdn)# generic.cfm
      !
    !
  !
  line|line|lb/le/wa||
    <cr>||||
    !
  !
!
vpdn-group|vpdn group configuration|k||
  word|word|k||
    <cr>||||@(config-vpdn)# generic.cfm
    !
  !
!
bba-group|bba group|k||
  pppoe|pppoe|k||
    word|word|k||
      <cr>||||@(config-bba-group)# generic.cfm
      !
    !
  !
!
mpls|mpls configuration|k||
  ldp|ldp|k||
    logging|ldp logging|k||
      neighbor-changes|log neighbor state changes|k||
        <cr>||||
        !
      !
      password|log password events|k||
        configuration|password configuration changes|k||
          <cr>||||
          !
          rate-limit|rate-limit|k||
            1-60|1-60|||
              <cr>||||
              !
            !
          !
        !
        rollover|password rollover events|k||
          <cr>||||
          !
          rate-limit|rate-limit|k||
            1-60|1-60|||
              <cr>||||
              !
            !
          !
        !
      !
    !
    graceful-restart|graceful-restart|k||
      <cr>||||
      !
      timers|graceful restart timers|k||
        neighbor-liveness|neighbor-liveness|k||
          5-300|seconds|o||
            <cr>||||
            !
          !
        !
        max-recovery|max-recovery|k||
          15-600|seconds|o||
            <cr>||||
            !
          !
        !
        forwarding-holding|forwarding-holding|k||
          30-600|seconds|o||
            <cr>||||
            !
          !
        !
      !
    !
    holdtime|ldp session holdtime|k||
      15-2147483|seconds|o||
        <cr>||||
        !
      !
    !
    advertise-labels|advertise label bindings|k||
      <cr>||||
      !
      for|for|k||
        word|word|k||
          <cr>||||
          !
          to|to|k||
            word|word|||
              <cr>||||
              !
            !
          !
        !
      !
      interface|interface|k||
        &interfacefile.cfm|interface type|k||
          <number>|interface number|k||
            <cr>||||
            !
          !
        !
      !
    !
    maxhops|limit hop count for ldp loop detection|k||
      1-255|hop count|o||
        <cr>||||
        !
      !
    !
    router-id|router-id|k||
      &interfacefile.cfm|interface type|k||
        <number>|interface number|k||
          <cr>||||
          !
          force|force|k||
            <cr>||||
            !
          !
        !
      !
      a.b.c.d|a.b.c.d|||
        <cr>||||
        !
        force|force|k||
          <cr>||||
          !
        !
      !
    !
    explicit-null|explicit-null|k||
      <cr>||||
      !
    !
    session|session|k||
      protection|protection|k||
        <cr>||||
        !
      !
    !
    discovery|ldp discovery|k||
      hello|link hellos|k||
        holdtime|holdtime|k||
          1-65535|seconds|o||
            <cr>||||
            !
          !
        !
        interval|interval|k||
          1-65535|seconds|o||
            <cr>||||
            !
          !
        !
      !
      targeted-hello|targeted hellos|k||
        holdtime|holdtime|k||
          1-65535|seconds|o||
            <cr>||||
            !
          !
        !
        interval|interval|k||
          1-65535|seconds|o||
            <cr>||||
            !
          !
        !
        accept|accept targeted hellos|k||
          <cr>||||
          !
          from|from|k||
            word|access list|o||
              <cr>||||
              !
            !
          !
        !
      !
      transport-address|address of the tcp connection|k||
        a.b.c.d|a.b.c.d|o||
          <cr>||||
          !
        !
        interface|interface|k||
          <cr>||||
          !
        !
      !
    !
    neighbor|ldp neighbor settings|k||
      vrf|vrf|k||
        word|word|k||
          a.b.c.d|a.b.c.d|k||
            password|password|k||
              0|0|||
                word|word|o||
                  <cr>||||
                  !
                !
              !
              7|7|||
                word|word|o||
                  <cr>||||
                  !
                !
              !
              word|word|o||
                <cr>||||
                !
              !
            !
          !
        !
      !
      a.b.c.d|a.b.c.d|k||
        password|md5 password of the session|k||
          0|0|||
            word|word|o||
              <cr>||||
              !
            !
          !
          7|7|||
            word|word|o||
              <cr>||||
              !
            !
          !
          word|word|o||
            <cr>||||
            !
          !
        !
        targeted|a targeted session|k||
          <cr>||||
          !
          ldp|ldp|k||
            <cr>||||
            !
          !
        !
        labels|labels|k||
          accept|accept|k||
            word|word|o||
              <cr>||||
              !
            !
          !
        !
        implicit-withdraw|implicit-withdraw|k||
          <cr>||||
          !
        !
      !
    !
    label|ldp label settings|k||
      <cr>||||@(config-ldp-lbl)# mpls_ldp_label.cfm
      !
      line|line|lb/le/wa||
        <cr>||||
        !
      !
    !
    password|password|k||
      line|line|lb/le/wa||
        <cr>||||
        !
      !
    !
    igp|igp|k||
      sync|sync|k||
        holddown|holddown|k||
          id|id|||
            <cr>||||
            !
          !
        !
      !
    !
    backoff|backoff|k||
      id|id|||
        id|id|||
          <cr>||||
          !
        !
      !
    !
  !
  label|label|k||
    range|range|k||
      id|id|||
        id|id|||
          <cr>||||
          !
          static|static|k||
            id|id|||
              id|id|||
                <cr>||||
                !
              !
            !
          !
        !
      !
    !
    protocol|protocol|k||
      ldp|ldp|k||
        <cr>||||
        !
      !
      tdp|tdp|k||
        <cr>||||
        !
      !
    !
    mode|label allocation mode|k||
      all-vrfs|all vrfs|k||
        protocol|protocol|k||
          all-afs|all address families|k||
            per-prefix|a label for each prefix|k||
              <cr>||||
              !
            !
            per-vrf|one label for the vrf|k||
              <cr>||||
              !
            !
            per-ce|a label for each ce|k||
              <cr>||||
              !
            !
          !
          bgp-vpnv4|bgp-vpnv4|k||
            per-prefix|per-prefix|k||
              <cr>||||
              !
            !
            per-vrf|per-vrf|k||
              <cr>||||
              !
            !
            per-ce|per-ce|k||
              <cr>||||
              !
            !
          !
          bgp-vpnv6|bgp-vpnv6|k||
            per-prefix|per-prefix|k||
              <cr>||||
              !
            !
            per-vrf|per-vrf|k||
              <cr>||||
              !
            !
            per-ce|per-ce|k||
              <cr>||||
              !
            !
          !
        !
      !
      vrf|vrf|k||
        word|word|k||
          protocol|protocol|k||
            all-afs|all-afs|k||
              per-prefix|per-prefix|k||
                <cr>||||
                !
              !
              per-vrf|per-vrf|k||
                <cr>||||
                !
              !
              per-ce|per-ce|k||
                <cr>||||
                !
              !
            !
          !
        !
      !
    !
  !
  mldp|multipoint ldp|k||
    <cr>||||
    !
    forwarding|mldp forwarding|k||
      recursive|recursive forwarding|k||
        <cr>||||
        !
      !
    !
    path|path selection|k||
      multipath|load balancing over paths|k||
        upstream|upstream|k||
          <cr>||||
          !
        !
        downstream|downstream|k||
          <cr>||||
          !
        !
      !
    !
    logging|mldp logging|k||
      notifications|mldp notifications|k||
        <cr>||||
        !
      !
    !
  !
  export|export mpls vpn information|k||
    vpnv4|vpnv4 information|k||
      prefixes|prefixes|k||
        <cr>||||
        !
      !
    !
    interval|export interval|k/n||
      0-1440|minutes|o||
        <cr>||||
        !
      !
    !
  !
  discovery|mpls discovery|k||
    vpn|vpn discovery|k||
      interval|interval|k/n||
        30-86400|seconds|o||
          <cr>||||
          !
        !
      !
      next-hop|next-hop|k||
        <cr>||||
        !
      !
      edgerouter|edgerouter|k||
        <cr>||||
        !
      !
    !
  !
  traffic-eng|traffic-eng|k||
    tunnels|tunnels|k||
      <cr>||||
      !
    !
    line|line|lb/le/wa||
      <cr>||||
      !
    !
  !
  ip|ip|k||
    <cr>||||
    !
    line|line|lb/le/wa||
      <cr>||||
      !
    !
  !
  mtu|mtu|k||
    id|id|||
      <cr>||||
      !
    !
  !
  oam|mpls operation and maintenance|k||
    <cr>||||@(config-mpls)# mpls_oam.cfm
    !
  !
  ipv6|ipv6|k||
    line|line|lb/le/wa||
      <cr>||||
      !
    !
  !
!
kron|command scheduler|k||
  policy-list|policy-list|k||
    word|word|k||
      <cr>||||@(config-kron-policy)# generic.cfm
      !
    !
  !
  occurrence|occurrence|k||
    word|word|k||
      line|line|lb/le/wa||
        <cr>||||@(config-kron-occurrence)# generic.cfm
        !
      !
    !
  !
!
object-group|object group|k||
  network|network|k||
    word|word|k||
      <cr>||||@(config-network-group)# object_group.cfm
      !
    !
  !
  service|service|k||
    word|word|k||
      <cr>||||@(config-service-group)# object_group_service.cfm
      !
    !
  !
!
zone|firewall zone|k||
  security|security|k||
    word|word|k||
      <cr>||||@(config-sec-zone)# generic.cfm
      !
    !
  !
!
zone-pair|zone pair|k||
  security|security|k||
    word|word|k||
      source|source|k||
        word|word|k||
          destination|destination|k||
            word|word|k||
              <cr>||||@(config-sec-zone-pair)# zone_pair.cfm
              !
            !
          !
        !
      !
    !
  !
!
tacacs-server|tacacs server configuration|k||
  host|host|k||
    a.b.c.d|a.b.c.d|k||
      <cr>||||
      !
      line|line|lb/le/wa||
        <cr>||||
        !
      !
    !
  !
  key|key|k||
    id|id|||
      line|line|lb/le/wa||
        <cr>||||
        !
      !
    !
    line|line|lb/le/wa/o||
      <cr>||||
      !
    !
  !
  timeout|timeout|k||
    id|id|||
      <cr>||||
      !
    !
  !
  directed-request|directed-request|k||
    <cr>||||
    !
  !
  administration|administration|k||
    <cr>||||
    !
  !
  cache|tacacs server cache|k||
    expiry|cache expiry|k||
      id|hours|o||
        <cr>||||
        !
        enforce|do not use expired entries|k||
          <cr>||||
          !
          hours|hours|k||
            <cr>||||
            !
          !
        !
      !
    !
  !
!
tacacs|tacacs server|k||
  server|server|k||
    word|word|k||
      <cr>||||@(config-server-tacacs)# server.cfm
      !
    !
  !
!
radius-server|radius server configuration|k||
  host|host|k||
    a.b.c.d|a.b.c.d|k||
      <cr>||||
      !
      line|line|lb/le/wa||
        <cr>||||
        !
      !
    !
  !
  key|key|k||
    id|id|||
      line|line|lb/le/wa||
        <cr>||||
        !
      !
    !
    line|line|lb/le/wa/o||
      <cr>||||
      !
    !
  !
  line|line|lb/le/wa||
    <cr>||||
    !
  !
!
radius|radius server|k||
  server|server|k||
    word|word|k||
      <cr>||||@(config-radius-server)# server.cfm
      !
    !
  !
!
mmi|modem management|k||
  polling-interval|polling-interval|k||
    id|id|||
      <cr>||||
      !
    !
  !
  auto-configure|automatic configuration of the modem pvc|k/n/o/sb||
    id|retry interval in seconds|||
      <cr>||||
      !
    !
  !
  pvc|pvc used by the modem|k/n/o/sb||
    line|line|lb/le/wa||
      <cr>||||
      !
    !
  !
  snmp-timeout|snmp-timeout|k||
    id|id|||
      <cr>||||
      !
    !
  !
!
iox|application hosting|k||
  <cr>||||
  !
!
app-hosting|application hosting|k||
  appid|appid|k||
    word|word|k||
      <cr>||||@(config-app-hosting)# generic.cfm
      !
    !
  !
!
call-home|call home|k||
  <cr>||||@(cfg-call-home)# call_home.cfm
  !
!
aqm-register-fnf|aqm register with flexible netflow|k||
  <cr>||||
  !
!
event|event manager|k||
  manager|manager|k||
    applet|applet|k||
      word|word|k||
        <cr>||||@(config-applet)# eem_applet.cfm
        !
        line|line|lb/le/wa||
          <cr>||||@(config-applet)# eem_applet.cfm
          !
        !
      !
    !
    environment|environment|k||
      word|word|k||
        line|line|lb/le/wa||
          <cr>||||
          !
        !
      !
    !
    session|session|k||
      line|line|lb/le/wa||
        <cr>||||
        !
      !
    !
    directory|directory|k||
      line|line|lb/le/wa||
        <cr>||||
        !
      !
    !
    policy|register a policy|k||
      word|policy file name|k||
        <cr>||||
        !
        line|line|lb/le/wa||
          <cr>||||
          !
        !
      !
    !
    scheduler|scheduler settings|k||
      line|line|lb/le/wa||
        <cr>||||
        !
      !
    !
    history|history settings|k||
      line|line|lb/le/wa||
        <cr>||||
        !
      !
    !
    detector|detector settings|k||
      line|line|lb/le/wa||
        <cr>||||
        !
      !
    !
  !
!
ethernet|ethernet configuration|k||
  lmi|lmi|k||
    ce|ce|k||
      <cr>||||
      !
    !
  !
  cfm|cfm|k||
    line|line|lb/le/wa||
      <cr>||||
      !
    !
  !
  evc|evc|k||
    word|word|k||
      <cr>||||@(config-evc)# generic.cfm
      !
    !
  !
!
mgcp|media gateway control protocol|k||
  <cr>||||
  !
  profile|profile|k||
    word|word|k||
      <cr>||||@(config-mgcp-profile)# generic.cfm
      !
    !
  !
  line|line|lb/le/wa||
    <cr>||||
    !
  !
!
pseudowire-class|pseudowire class|k||
  word|word|k||
    <cr>||||@(config-pw-class)# generic.cfm
    !
  !
!
l2tp-class|configure an l2tp class|k||
  word|word|k||
    <cr>||||@(config-l2tp-class)# generic.cfm
    !
  !
!
voice-card|configure a voice card|k||
  id|id|k||
    <cr>||||@(config-voicecard)# generic.cfm
    !
  !
!
sccp|skinny client control protocol|k||
  <cr>||||
  !
  line|line|lb/le/wa||
    <cr>||||
    !
  !
!
card|card type|k||
  type|type|k||
    line|line|lb/le/wa||
      <cr>||||
      !
    !
  !
!
controller|controller configuration|k||
  word|word|k||
    <number>|number|k||
      <cr>||||@(config-controller)# generic.cfm
      !
    !
  !
!
network-clock-participate|network clock|k||
  line|line|lb/le/wa||
    <cr>||||
    !
  !
!
network-clock|configure network clock|k||
  line|line|lb/le/wa||
    <cr>||||
    !
  !
!
network-clock-select|select a network clock source|k||
  line|line|lb/le/wa||
    <cr>||||
    !
  !
!
scheduler|scheduler parameters|k||
  process-watchdog|action for looping processes|k||
    hang|hang|k||
      <cr>||||
      !
    !
    normal|normal|k||
      <cr>||||
      !
    !
    reload|reload|k||
      <cr>||||
      !
    !
    terminate|terminate|k||
      <cr>||||
      !
    !
  !
  allocate|allocate|k||
    <cr>||||
    !
    id|id|||
      id|id|||
        <cr>||||
        !
      !
    !
  !
  interval|interval|k||
    id|id|||
      <cr>||||
      !
    !
  !
  max-task-time|max-task-time|k||
    id|id|||
      <cr>||||
      !
    !
  !
!
ipv6|ipv6 configuration|k||&ipv6_global.cfm
!
ip|global ip configuration|k||&ip_global.cfm
!
aaa|authentication, authorization and accounting|k||
  new-model|new-model|k/sb/o||
    <cr>||||
    !
  !
  authentication|authentication|k||
    login|login|k||
      word|word|k/n||
        line|line|lb/le/wa/o||
          <cr>||||
          !
        !
      !
    !
    enable|enable|k||
      default|default|k||
        line|line|lb/le/wa||
          <cr>||||
          !
        !
      !
    !
    ppp|ppp|k||
      word|word|k||
        line|line|lb/le/wa||
          <cr>||||
          !
        !
      !
    !
    dot1x|dot1x|k||
      word|word|k||
        line|line|lb/le/wa||
          <cr>||||
          !
        !
      !
    !
    attempts|attempts|k||
      login|login|k||
        id|id|||
          <cr>||||
          !
        !
      !
    !
    password-prompt|password-prompt|k||
      line|line|lb/le/wa||
        <cr>||||
        !
      !
    !
    username-prompt|username-prompt|k||
      line|line|lb/le/wa||
        <cr>||||
        !
      !
    !
    banner|banner|k||
      line|line|lb/le/wa||
        <cr>||||
        !
      !
    !
    fail-message|fail-message|k||
      line|line|lb/le/wa||
        <cr>||||
        !
      !
    !
  !
  authorization|authorization|k||
    exec|exec|k||
      word|word|k||
        line|line|lb/le/wa||
          <cr>||||
          !
        !
      !
    !
    network|network|k||
      word|word|k||
        line|line|lb/le/wa||
          <cr>||||
          !
        !
      !
    !
    commands|commands|k||
      id|id|k||
        word|word|k||
          line|line|lb/le/wa||
            <cr>||||
            !
          !
        !
      !
    !
    console|console|k||
      <cr>||||
      !
    !
    config-commands|config-commands|k||
      <cr>||||
      !
    !
    configuration|configuration|k||
      word|word|k||
        line|line|lb/le/wa||
          <cr>||||
          !
        !
      !
    !
    auth-proxy|auth-proxy|k||
      line|line|lb/le/wa||
        <cr>||||
        !
      !
    !
    reverse-access|reverse-access|k||
      line|line|lb/le/wa||
        <cr>||||
        !
      !
    !
  !
  memory|aaa memory settings|k||
    threshold|threshold|k||
      authentication|authentication|k||
        reject|reject|k||
          id|id|o||
            <cr>||||
            !
          !
        !
      !
      accounting|accounting|k||
        disable|disable|k||
          id|id|o||
            <cr>||||
            !
          !
        !
      !
    !
  !
  accounting|accounting|k||
    jitter|jitter of periodic accounting|k||
      maximum|maximum|k||
        id|id|o||
          <cr>||||
          !
        !
      !
    !
    exec|exec|k||
      word|word|k||
        line|line|lb/le/wa||
          <cr>||||
          !
        !
      !
    !
    network|network|k||
      word|word|k||
        line|line|lb/le/wa||
          <cr>||||
          !
        !
      !
    !
    commands|commands|k||
      id|id|k||
        word|word|k||
          line|line|lb/le/wa||
            <cr>||||
            !
          !
        !
      !
    !
    connection|connection|k||
      word|word|k||
        line|line|lb/le/wa||
          <cr>||||
          !
        !
      !
    !
    system|system|k||
      line|line|lb/le/wa||
        <cr>||||
        !
      !
    !
    update|update|k||
      line|line|lb/le/wa||
        <cr>||||
        !
      !
    !
    send|send|k||
      line|line|lb/le/wa||
        <cr>||||
        !
      !
    !
    delay-start|delay-start|k||
      <cr>||||
      !
    !
    dot1x|dot1x|k||
      line|line|lb/le/wa||
        <cr>||||
        !
      !
    !
    identity|identity|k||
      line|line|lb/le/wa||
        <cr>||||
        !
      !
    !
  !
  session-id|session-id|k||
    common|common|k/o||
      <cr>||||
      !
    !
    unique|unique|k/o||
      <cr>||||
      !
    !
  !
  group|group|k||
    server|server|k||
      tacacs+|tacacs+|k||
        word|word|k||
          <cr>||||@(config-sg-tacacs+)# aaa_group.cfm
          !
        !
      !
      radius|radius|k||
        word|word|k||
          <cr>||||@(config-sg-radius)# aaa_group.cfm
          !
        !
      !
    !
  !
  server|server|k||
    radius|radius|k||
      dynamic-author|dynamic-author|k||
        <cr>||||@(config-locsvr-da-radius)# aaa_group.cfm
        !
      !
    !
  !
  local|local|k||
    authentication|authentication|k||
      line|line|lb/le/wa||
        <cr>||||
        !
      !
    !
  !
  password|password|k||
    restriction|restriction|k||
      <cr>||||
      !
    !
  !
  common-criteria|common-criteria|k||
    line|line|lb/le/wa||
      <cr>||||
      !
    !
  !
  attribute|attribute|k||
    list|list|k||
      word|word|k||
        <cr>||||@(config-attr-list)# aaa_group.cfm
        !
      !
    !
  !
!
ntp|configure ntp|k||
  server|server|k||
    vrf|vrf|k||
      word|word|k||
        word|word|k/o||
          <cr>||||
          !
          line|line|lb/le/wa||
            <cr>||||
            !
          !
        !
      !
    !
    ip|ip|k||
      word|word|k/o||
        <cr>||||
        !
        line|line|lb/le/wa||
          <cr>||||
          !
        !
      !
    !
    word|ntp server address|k/o||
      <cr>||||
      !
      prefer|prefer|||
        <cr>||||
        !
        source|source|||
          &interfacefile.cfm|interface type|o||
            <number>|interface number|o||
              <cr>||||
              !
            !
          !
        !
        key|key|||
          id|id|||
            <cr>||||
            !
          !
        !
      !
      source|source|||
        &interfacefile.cfm|interface type|o||
          <number>|interface number|o||
            <cr>||||
            !
          !
        !
      !
      key|key|||
        id|id|||
          <cr>||||
          !
          prefer|prefer|||
            <cr>||||
            !
          !
        !
      !
      version|version|||
        id|id|||
          <cr>||||
          !
        !
      !
      maxpoll|maxpoll|||
        4-17|4-17|||
          minpoll|minpoll|k||
            4-17|4-17|||
              version|version|k||
                2-4|2-4|||
                  <cr>||||
                  !
                  burst|burst|k||
                    <cr>||||
                    !
                    iburst|iburst|k||
                      <cr>||||
                      !
                    !
                  !
                !
              !
            !
          !
        !
      !
      burst|burst|||
        <cr>||||
        !
      !
      iburst|iburst|||
        <cr>||||
        !
        line|line|lb/le/wa||
          <cr>||||
          !
        !
      !
    !
  !
  peer|peer|k||
    vrf|vrf|k||
      word|word|k||
        word|word|k/o||
          <cr>||||
          !
          line|line|lb/le/wa||
            <cr>||||
            !
          !
        !
      !
    !
    word|word|k/o||
      <cr>||||
      !
      line|line|lb/le/wa||
        <cr>||||
        !
      !
    !
  !
  master|master|k/o||
    <cr>||||
    !
    id|id|o||
      <cr>||||
      !
    !
  !
  source|source|k||
    &interfacefile.cfm|interface type|o||
      <number>|interface number|o||
        <cr>||||
        !
      !
    !
  !
  update-calendar|update-calendar|k||
    <cr>||||
    !
  !
  clock-period|clock-period|k||
    id|id|o||
      <cr>||||
      !
    !
  !
  authenticate|authenticate|k||
    <cr>||||
    !
  !
  authentication-key|authentication-key|k||
    id|id|k/n||
      md5|md5|k||
        word|word|o||
          id|id|||
            <cr>||||
            !
          !
        !
        line|line|lb/le/wa||
          <cr>||||
          !
        !
      !
    !
  !
  trusted-key|trusted-key|k||
    id|id|k||
      <cr>||||
      !
      -|range of keys|k||
        id|last key|k||
          <cr>||||
          !
        !
      !
    !
  !
  logging|logging|k||
    <cr>||||
    !
  !
  access-group|access-group|k||
    line|line|lb/le/wa||
      <cr>||||
      !
    !
  !
  broadcastdelay|broadcastdelay|k||
    id|id|||
      <cr>||||
      !
    !
  !
  max-associations|max-associations|k||
    id|id|||
      <cr>||||
      !
    !
  !
  allow|allow ntp packets|k||
    mode|ntp mode|k||
      control|control messages|k||
        id|delay in seconds|o||
          <cr>||||
          !
        !
      !
      private|private messages|k||
        <cr>||||
        !
      !
    !
  !
  mindistance|minimum distance|k||
    1-16|1-16|o||
      <cr>||||
      !
    !
  !
  maxdistance|maximum distance|k||
    1-16|1-16|o||
      <cr>||||
      !
    !
  !
!
logging|modify message logging facilities|k||
  a.b.c.d|ip address of the logging host|k||
    <cr>||||
    !
    line|line|lb/le/wa||
      <cr>||||
      !
    !
  !
  host|host|k||
    a.b.c.d|a.b.c.d|k||
      <cr>||||
      !
      line|line|lb/le/wa||
        <cr>||||
        !
      !
    !
    ipv6|ipv6|k||
      line|line|lb/le/wa||
        <cr>||||
        !
      !
    !
    word|word|k||
      <cr>||||
      !
      line|line|lb/le/wa||
        <cr>||||
        !
      !
    !
  !
  buffered|logging to the buffer|k||
    <cr>||||
    !
    id|buffer size in bytes|o||
      <cr>||||
      !
      &loglevelfile.cfm|severity|o||
        <cr>||||
        !
      !
    !
    &loglevelfile.cfm|severity|o||
      <cr>||||
      !
    !
    discriminator|filter by a message discriminator|k||
      word|word|||
        <cr>||||
        !
        line|line|lb/le/wa||
          <cr>||||
          !
        !
      !
    !
    xml|log in xml form|k||
      <cr>||||
      !
      line|line|lb/le/wa||
        <cr>||||
        !
      !
    !
    filtered|filtered logging|k||
      <cr>||||
      !
      line|line|lb/le/wa||
        <cr>||||
        !
      !
    !
  !
  console|console|k||
    <cr>||sn||
    !
    guaranteed|guaranteed logging to the console|k||
      <cr>||||
      !
    !
    line|line|lb/le/wa/o||
      <cr>||||
      !
    !
    discriminator|discriminator|k||
      word|word|||
        <cr>||||
        !
      !
    !
  !
  monitor|monitor|k||
    <cr>||sn||
    !
    line|line|lb/le/wa/o||
      <cr>||||
      !
    !
  !
  trap|trap|k||
    <cr>||||
    !
    line|line|lb/le/wa/o||
      <cr>||||
      !
    !
  !
  source-interface|source-interface|k/n||
    &interfacefile.cfm|interface type|o||
      <number>|interface number|o||
        <cr>||||
        !
        vrf|vrf|k||
          word|word|||
            <cr>||||
            !
          !
        !
      !
    !
  !
  facility|facility|k||
    word|word|o||
      <cr>||||
      !
    !
  !
  synchronous|synchronous|k||
    line|line|lb/le/wa||
      <cr>||||
      !
    !
  !
  rate-limit|rate-limit|k||
    line|line|lb/le/wa||
      <cr>||||
      !
    !
  !
  snmp-authfail|snmp-authfail|k||
    <cr>||||
    !
  !
  userinfo|userinfo|k||
    <cr>||||
    !
  !
  origin-id|origin-id|k/n||
    line|line|lb/le/wa||
      <cr>||||
      !
    !
  !
  discriminator|discriminator|k/n||
    word|word|k||
      line|line|lb/le/wa||
        <cr>||||
        !
      !
    !
  !
  event|event|k||
    line|line|lb/le/wa||
      <cr>||||
      !
    !
  !
  count|count|k||
    <cr>||||
    !
  !
  persistent|persistent|k/n||
    line|line|lb/le/wa||
      <cr>||||
      !
    !
  !
  queue-limit|queue-limit|k||
    line|line|lb/le/wa||
      <cr>||||
      !
    !
  !
  history|history|k||
    line|line|lb/le/wa||
      <cr>||||
      !
    !
  !
  snmp-trap|logging severities sent as snmp traps|k||
    &loglevelfile.cfm|severity|k||
      <cr>||||
      !
    !
  !
  file|file|k||
    line|line|lb/le/wa||
      <cr>||||
      !
    !
  !
  on|on|k||
    <cr>||||
    !
  !
  timestamp|timestamp|k||
    line|line|lb/le/wa||
      <cr>||||
      !
    !
  !
  reload|reload|k||
    line|line|lb/le/wa||
      <cr>||||
      !
    !
  !
  alarm|alarm|k||
    line|line|lb/le/wa||
      <cr>||||
      !
    !
  !
  message-counter|message-counter|k||
    line|line|lb/le/wa||
      <cr>||||
      !
    !
  !
  dmvpn|dmvpn|k||
    line|line|lb/le/wa||
      <cr>||||
      !
    !
  !
  cns-events|cns-events|k||
    line|line|lb/le/wa||
      <cr>||||
      !
    !
  !
  exception|exception|k||
    line|line|lb/le/wa||
      <cr>||||
      !
    !
  !
  server-arp|server-arp|k||
    <cr>||||
    !
  !
  hostname|hostname|k||
    line|line|lb/le/wa||
      <cr>||||
      !
    !
  !
  esm|event streaming|k||
    config|log configuration changes|k||
      <cr>||||
      !
    !
  !
  btrace|binary trace logging|k||
    <cr>||||
    !
  !
  buginf|debug messages through logging|k||
    <cr>||||
    !
  !
  policy-firewall|firewall logging|k||
    rate-limit|rate-limit|k||
      id|seconds|o||
        <cr>||||
        !
      !
    !
  !
  delimiter|message delimiter|k||
    tcp|tcp|k||
      <cr>||||
      !
    !
  !
!
snmp-server|modify snmp engine parameters|k||
  community|community|k||
    word|word|k/n||
      view|view|o||
        word|word|||
          line|line|lb/le/wa||
            <cr>||||
            !
          !
        !
      !
      ro|ro|o||
        <cr>||||
        !
        line|line|lb/le/wa||
          <cr>||||
          !
        !
      !
      rw|rw|o||
        <cr>||||
        !
        line|line|lb/le/wa||
          <cr>||||
          !
        !
      !
      id|id|o||
        <cr>||||
        !
      !
    !
  !
  location|location|k/o||
    line|text|lb/le/wa||
      <cr>||||
      !
    !
  !
  contact|contact|k/o||
    line|text|lb/le/wa||
      <cr>||||
      !
    !
  !
  enable|enable|k||
    traps|traps|k||
      <cr>||||
      !
      line|line|lb/le/wa||
        <cr>||||
        !
      !
    !
    informs|informs|k||
      <cr>||||
      !
    !
  !
  host|host|k||
    a.b.c.d|a.b.c.d|k||
      line|line|lb/le/wa||
        <cr>||||
        !
      !
    !
    word|word|k||
      line|line|lb/le/wa||
        <cr>||||
        !
      !
    !
  !
  trap-source|trap-source|k||
    &interfacefile.cfm|interface type|o||
      <number>|interface number|o||
        <cr>||||
        !
      !
    !
  !
  trap|trap|k||
    link|link|k||
      line|line|lb/le/wa||
        <cr>||||
        !
      !
    !
    line|line|lb/le/wa||
      <cr>||||
      !
    !
  !
  ifindex|ifindex|k||
    persist|persist|k||
      <cr>||||
      !
    !
  !
  chassis-id|chassis-id|k||
    line|line|lb/le/wa||
      <cr>||||
      !
    !
  !
  user|user|k||
    line|line|lb/le/wa||
      <cr>||||
      !
    !
  !
  group|group|k||
    line|line|lb/le/wa||
      <cr>||||
      !
    !
  !
  view|view|k||
    word|word|k||
      word|word|k/n||
        included|included|o||
          <cr>||||
          !
        !
        excluded|excluded|o||
          <cr>||||
          !
        !
        line|line|lb/le/wa||
          <cr>||||
          !
        !
      !
    !
  !
  engineID|engineID|k||
    line|line|lb/le/wa||
      <cr>||||
      !
    !
  !
  source-interface|source-interface|k||
    line|line|lb/le/wa||
      <cr>||||
      !
    !
  !
  packetsize|packetsize|k||
    id|id|||
      <cr>||||
      !
    !
  !
  queue-length|queue-length|k||
    id|id|||
      <cr>||||
      !
    !
  !
  trap-timeout|trap-timeout|k||
    id|id|||
      <cr>||||
      !
    !
  !
  system-shutdown|system-shutdown|k||
    <cr>||||
    !
  !
  manager|manager|k||
    <cr>||||
    !
  !
  tftp-server-list|tftp-server-list|k||
    line|line|lb/le/wa||
      <cr>||||
      !
    !
  !
  file-transfer|file-transfer|k||
    line|line|lb/le/wa||
      <cr>||||
      !
    !
  !
  mib|mib|k||
    line|line|lb/le/wa||
      <cr>||||
      !
    !
  !
  vrf|vrf|k||
    line|line|lb/le/wa||
      <cr>||||
      !
    !
  !
  context|context|k||
    line|line|lb/le/wa||
      <cr>||||
      !
    !
  !
  inform|inform|k||
    line|line|lb/le/wa||
      <cr>||||
      !
    !
  !
  trap-authentication|trap-authentication|k||
    line|line|lb/le/wa||
      <cr>||||
      !
    !
  !
  ip|ip|k||
    line|line|lb/le/wa||
      <cr>||||
      !
    !
  !
!
snmp|modify snmp engine parameters|k||
  ifmib|ifmib|k||
    line|line|lb/le/wa||
      <cr>||||
      !
    !
  !
  mib|mib|k||
    line|line|lb/le/wa||
      <cr>||||
      !
    !
  !
!
key|key management|k||
  chain|Key-chain management|k||
    word|Key-chain name|k||
      <cr>||||@(config-keychain)# key_chain.cfm
      !
    !
  !
  config-key|config-key|k||
    line|line|lb/le/wa||
      <cr>||||
      !
    !
  !
!
class-map|configure class map|k||
  match-all|Logical-AND all matching statements under this classmap|k||
    word|class-map name|k||
      <cr>||||@(config-cmap)# class_map.cfm
      !
    !
  !
  match-any|Logical-OR all matching statements under this classmap|k||
    word|class-map name|k||
      <cr>||||@(config-cmap)# class_map.cfm
      !
    !
  !
  type|type|k||
    inspect|inspect|k||
      match-all|match-all|k||
        word|word|k||
          <cr>||||@(config-cmap)# class_map.cfm
          !
        !
      !
      match-any|match-any|k||
        word|word|k||
          <cr>||||@(config-cmap)# class_map.cfm
          !
        !
      !
      word|word|k||
        <cr>||||@(config-cmap)# class_map.cfm
        !
      !
    !
    word|word|||
      line|line|lb/le/wa||
        <cr>||||@(config-cmap)# class_map.cfm
        !
      !
    !
  !
  word|class-map name|k||
    <cr>||||@(config-cmap)# class_map.cfm
    !
  !
!
policy-map|configure qos service policy|k||
  type|type|k||
    inspect|inspect|k||
      word|word|k||
        <cr>||||@(config-pmap)# policy_map.cfm
        !
      !
    !
    control|control policy|k||
      subscriber|subscriber control policy|k||
        word|policy map name|k||
          <cr>||||@(config-event-control-policymap)# policy_ctrl.cfm
          !
        !
      !
    !
    word|word|||
      line|line|lb/le/wa||
        <cr>||||@(config-pmap)# policy_map.cfm
        !
      !
    !
  !
  word|policy-map name|k||
    <cr>||||@(config-pmap)# policy_map.cfm
    !
  !
!
vrf|vrf commands|k||
  definition|VRF definition|k||
    word|VRF name|k||
      <cr>||||@(config-vrf)# vrf.cfm
      !
    !
  !
!
crypto|encryption module|k||
  isakmp|isakmp|k||
    policy|Set policy for an ISAKMP protection suite|k||
      1-10000|Priority of protection suite|k||
        <cr>||||@(config-isakmp)# crypto_isakmp.cfm
        !
      !
    !
    profile|profile|k||
      word|word|k||
        <cr>||||@(conf-isa-prof)# crypto_isakmp_prof.cfm
        !
      !
    !
    key|key|k||
      0|an unencrypted key follows|||
        word|word|||
          address|address|k||
            a.b.c.d|a.b.c.d|k||
              <cr>||||
              !
              a.b.c.d|a.b.c.d|||
                <cr>||||
                !
              !
              no-xauth|no-xauth|k||
                <cr>||||
                !
              !
            !
          !
          hostname|hostname|k||
            word|word|k||
              <cr>||||
              !
            !
          !
        !
      !
      6|an encrypted key follows|||
        word|word|||
          address|address|k||
            a.b.c.d|a.b.c.d|k||
              <cr>||||
              !
              a.b.c.d|a.b.c.d|||
                <cr>||||
                !
              !
              no-xauth|no-xauth|k||
                <cr>||||
                !
              !
            !
          !
          hostname|hostname|k||
            word|word|k||
              <cr>||||
              !
            !
          !
        !
      !
      word|word|||
        address|address|k||
          a.b.c.d|a.b.c.d|k||
            <cr>||||
            !
            a.b.c.d|a.b.c.d|||
              <cr>||||
              !
            !
            no-xauth|no-xauth|k||
              <cr>||||
              !
            !
          !
          ipv6|ipv6|k||
            line|line|lb/le/wa||
              <cr>||||
              !
            !
          !
        !
        hostname|hostname|k||
          word|word|k||
            <cr>||||
            !
          !
        !
      !
    !
    diagnose|diagnostics|k||
      error|error|k||
        id|id|o||
          <cr>||||
          !
        !
      !
    !
    keepalive|keepalive|k||
      id|id|o||
        <cr>||||
        !
        id|id|||
          <cr>||||
          !
          periodic|periodic|k||
            <cr>||||
            !
          !
          on-demand|on-demand|k||
            <cr>||||
            !
          !
        !
        periodic|periodic|k||
          <cr>||||
          !
        !
        on-demand|on-demand|k||
          <cr>||||
          !
        !
      !
    !
    client|client|k||
      configuration|configuration|k||
        group|group|k||
          word|word|k||
            <cr>||||@(config-isakmp-group)# crypto_isakmp.cfm
            !
          !
        !
        address-pool|address-pool|k||
          line|line|lb/le/wa||
            <cr>||||
            !
          !
        !
      !
    !
    identity|identity|k||
      address|address|k||
        <cr>||||
        !
      !
      hostname|hostname|k||
        <cr>||||
        !
      !
      dn|dn|k||
        <cr>||||
        !
      !
    !
    nat|nat|k||
      keepalive|keepalive|k||
        id|id|||
          <cr>||||
          !
        !
      !
    !
    invalid-spi-recovery|invalid-spi-recovery|k||
      <cr>||||
      !
    !
    aggressive-mode|aggressive-mode|k||
      disable|disable|k||
        <cr>||||
        !
      !
    !
    enable|enable|k||
      <cr>||||
      !
    !
    xauth|xauth|k||
      line|line|lb/le/wa||
        <cr>||||
        !
      !
    !
    fragmentation|fragmentation|k||
      <cr>||||
      !
    !
  !
  keyring|keyring|k||
    word|word|k||
      <cr>||||@(conf-keyring)# crypto_keyring.cfm
      !
      vrf|vrf|k||
        word|word|||
          <cr>||||@(conf-keyring)# crypto_keyring.cfm
          !
        !
      !
    !
  !
  ipsec|ipsec|k||
    transform-set|transform-set|k||
      word|word|k||
        line|line|lb/le/wa/o||
          <cr>||||@(cfg-crypto-trans)# crypto_transform.cfm
          !
        !
      !
    !
    profile|profile|k||
      word|word|k||
        <cr>||||@(ipsec-profile)# crypto_map.cfm
        !
      !
    !
    security-association|security-association|k||
      line|line|lb/le/wa||
        <cr>||||
        !
      !
    !
    df-bit|df-bit|k||
      line|line|lb/le/wa||
        <cr>||||
        !
      !
    !
    nat-transparency|nat-transparency|k||
      line|line|lb/le/wa||
        <cr>||||
        !
      !
    !
    client|client|k||
      line|line|lb/le/wa||
        <cr>||||
        !
      !
    !
    fragmentation|fragmentation|k||
      line|line|lb/le/wa||
        <cr>||||
        !
      !
    !
    optional|optional|k||
      <cr>||||
      !
      retry|retry interval|k||
        id|id|o||
          <cr>||||
          !
        !
      !
    !
  !
  map|Enter a crypto map|k||
    word|Crypto map tag|k||
      1-65535|Sequence to insert into crypto map entry|k||
        ipsec-isakmp|ipsec-isakmp|k||
          <cr>||||@(config-crypto-map)# crypto_map.cfm
          !
          dynamic|dynamic|k||
            word|word|||
              <cr>||||
              !
            !
          !
          profile|profile|k||
            word|word|||
              <cr>||||@(config-crypto-map)# crypto_map.cfm
              !
            !
          !
        !
        ipsec-manual|ipsec-manual|k||
          <cr>||||@(config-crypto-map)# crypto_map.cfm
          !
        !
        gdoi|gdoi|k||
          <cr>||||@(config-crypto-map)# crypto_map.cfm
          !
        !
      !
      local-address|Interface to use for local address for this crypto map|k||
        &interfacefile.cfm|interface type|k||
          <number>|interface number|k||
            <cr>||||
            !
          !
        !
      !
      client|Specify client configuration settings|k||
        line|line|lb/le/wa/k||
          <cr>||||
          !
        !
      !
      isakmp|Specify isakmp configuration settings|k||
        line|line|lb/le/wa/k||
          <cr>||||
          !
        !
      !
      isakmp-profile|Specify isakmp profile to use|k||
        word|word|||
          <cr>||||
          !
        !
      !
      redundancy|High availability options for this map|k||
        line|line|lb/le/wa/k||
          <cr>||||
          !
        !
      !
    !
  !
  dynamic-map|dynamic-map|k||
    word|word|k||
      id|id|k||
        <cr>||||@(config-crypto-map)# crypto_map.cfm
        !
      !
    !
  !
  pki|pki|k||
    trustpoint|trustpoint|k||
      word|word|k||
        <cr>||||@(ca-trustpoint)# crypto_pki.cfm
        !
      !
    !
    certificate|certificate|k||
      chain|chain|k||
        word|word|k||
          <cr>||||@(config-cert-chain)# crypto_cert.cfm
          !
        !
      !
      map|map|k||
        line|line|lb/le/wa||
          <cr>||||
          !
        !
      !
      storage|storage|k||
        line|line|lb/le/wa||
          <cr>||||
          !
        !
      !
    !
    token|token|k||
      line|line|lb/le/wa||
        <cr>||||
        !
      !
    !
    server|server|k||
      word|word|k||
        <cr>||||@(cs-server)# crypto_pki.cfm
        !
      !
    !
    trustpool|trustpool|k||
      line|line|lb/le/wa||
        <cr>||||
        !
      !
    !
  !
  key|key|k||
    generate|generate|k||
      line|line|lb/le/wa||
        <cr>||||
        !
      !
    !
    pubkey-chain|pubkey-chain|k||
      line|line|lb/le/wa||
        <cr>||||
        !
      !
    !
    storage|storage|k||
      line|line|lb/le/wa||
        <cr>||||
        !
      !
    !
  !
  gdoi|gdoi|k||
    group|group|k||
      word|word|k||
        <cr>||||@(config-gkm-group)# gdoi_group.cfm
        !
      !
    !
  !
  ikev2|ikev2|k||
    proposal|proposal|k||
      word|word|k||
        <cr>||||@(config-ikev2-proposal)# crypto_ikev2.cfm
        !
      !
    !
    policy|policy|k||
      word|word|k||
        <cr>||||@(config-ikev2-policy)# crypto_ikev2.cfm
        !
      !
    !
    keyring|keyring|k||
      word|word|k||
        <cr>||||@(config-ikev2-keyring)# crypto_ikev2.cfm
        !
      !
    !
    profile|profile|k||
      word|word|k||
        <cr>||||@(config-ikev2-profile)# crypto_ikev2.cfm
        !
      !
    !
    authorization|authorization policies|k||
      policy|policy|k||
        word|word|k||
          <cr>||||@(config-ikev2-author-policy)# crypto_ikev2.cfm
          !
        !
      !
    !
    line|line|lb/le/wa||
      <cr>||||
      !
    !
  !
  call|call|k||
    admission|admission|k||
      limit|limit|k||
        line|line|lb/le/wa||
          <cr>||||
          !
        !
      !
    !
  !
  engine|engine|k||
    line|line|lb/le/wa||
      <cr>||||
      !
    !
  !
  ca|ca|k||
    line|line|lb/le/wa||
      <cr>||||
      !
    !
  !
  logging|logging|k||
    line|line|lb/le/wa||
      <cr>||||
      !
    !
  !
  vpn|vpn|k||
    line|line|lb/le/wa||
      <cr>||||
      !
    !
  !
  ctcp|ctcp|k||
    line|line|lb/le/wa||
      <cr>||||
      !
    !
  !
  mib|mib|k||
    line|line|lb/le/wa||
      <cr>||||
      !
    !
  !
!
mls|multilayer switching|k||
  qos|qos configuration|k/o||
    <cr>||sb||
    !
    map|qos maps|k||
      cos-dscp|cos to dscp map|k||
        <values>|dscp values for cos 0 to 7|lb/le/wa/o||
          <cr>||||
          !
        !
      !
      dscp-cos|dscp to cos map|k||
        <values>|dscp values|lb/le/wa||
          to|cos value follows|k||
            id|cos value|o||
              <cr>||||
              !
            !
          !
        !
      !
      ip-prec-dscp|ip precedence to dscp map|k||
        <values>|dscp values for precedence 0 to 7|lb/le/wa/o||
          <cr>||||
          !
        !
      !
      policed-dscp|policed dscp map|k||
        <values>|dscp values|lb/le/wa||
          to|mark down dscp follows|k||
            id|mark down dscp value|o||
              <cr>||||
              !
            !
          !
        !
      !
      dscp-mutation|dscp mutation map|k||
        word|mutation map name|k||
          <values>|input dscp values|lb/le/wa||
            to|output dscp follows|k||
              id|output dscp value|o||
                <cr>||||
                !
              !
            !
          !
        !
      !
    !
    srr-queue|configure srr queues|k||
      input|input queues|k||
        cos-map|configure cos map|k||
          queue|queue id|k||
            id|queue id|k||
              <cr>||||
              !
              threshold|threshold id|k||
                id|threshold id|k||
                  <values>|values mapped to this queue and threshold|k/lb/le/wa||
                    <cr>||||
                    !
                  !
                !
              !
              <values>|values mapped to this queue|lb/le/wa||
                <cr>||||
                !
              !
            !
          !
        !
        dscp-map|configure dscp map|k||
          queue|queue id|k||
            id|queue id|k||
              <cr>||||
              !
              threshold|threshold id|k||
                id|threshold id|k||
                  <values>|values mapped to this queue and threshold|k/lb/le/wa||
                    <cr>||||
                    !
                  !
                !
              !
              <values>|values mapped to this queue|lb/le/wa||
                <cr>||||
                !
              !
            !
          !
        !
        bandwidth|configure srr bandwidth|k||
          <weights>|weights|lb/le/wa/o||
            <cr>||||
            !
          !
        !
        buffers|configure buffer allocation|k||
          <percentages>|percentages|lb/le/wa/o||
            <cr>||||
            !
          !
        !
        threshold|configure queue tail-drop thresholds|k||
          id|queue id|k||
            <percentages>|threshold percentages|lb/le/wa/o||
              <cr>||||
              !
            !
          !
        !
        priority-queue|configure priority queue|k||
          id|queue id|k||
            bandwidth|bandwidth of the priority queue|k||
              id|percentage|o||
                <cr>||||
                !
              !
            !
          !
        !
      !
      output|output queues|k||
        cos-map|configure cos map|k||
          queue|queue id|k||
            id|queue id|k||
              <cr>||||
              !
              threshold|threshold id|k||
                id|threshold id|k||
                  <values>|values mapped to this queue and threshold|k/lb/le/wa||
                    <cr>||||
                    !
                  !
                !
              !
              <values>|values mapped to this queue|lb/le/wa||
                <cr>||||
                !
              !
            !
          !
        !
        dscp-map|configure dscp map|k||
          queue|queue id|k||
            id|queue id|k||
              <cr>||||
              !
              threshold|threshold id|k||
                id|threshold id|k||
                  <values>|values mapped to this queue and threshold|k/lb/le/wa||
                    <cr>||||
                    !
                  !
                !
              !
              <values>|values mapped to this queue|lb/le/wa||
                <cr>||||
                !
              !
            !
          !
        !
        bandwidth|configure srr bandwidth|k||
          <weights>|weights|lb/le/wa/o||
            <cr>||||
            !
          !
        !
        buffers|configure buffer allocation|k||
          <percentages>|percentages|lb/le/wa/o||
            <cr>||||
            !
          !
        !
        threshold|configure queue tail-drop thresholds|k||
          id|queue id|k||
            <percentages>|threshold percentages|lb/le/wa/o||
              <cr>||||
              !
            !
          !
        !
        priority-queue|configure priority queue|k||
          id|queue id|k||
            bandwidth|bandwidth of the priority queue|k||
              id|percentage|o||
                <cr>||||
                !
              !
            !
          !
        !
      !
    !
    queue-set|configure a queue set|k||
      output|output queue set|k||
        id|queue set id|k||
          threshold|configure queue thresholds|k||
            id|queue id|k||
              <values>|drop thresholds, reserved and maximum|lb/le/wa/o||
                <cr>||||
                !
              !
            !
          !
          buffers|configure buffer allocation|k||
            <percentages>|percentages|lb/le/wa/o||
              <cr>||||
              !
            !
          !
        !
      !
    !
    rewrite|modify packet priority|k||
      ip|ip header|k||
        dscp|rewrite dscp|k/sb||
          <cr>||||
          !
        !
      !
    !
    aggregate-policer|named aggregate policer|k||
      word|policer name|k||
        line|rate, burst and actions|lb/le/wa/o||
          <cr>||||
          !
        !
      !
    !
    trust|trust settings|k||
      line|line|lb/le/wa||
        <cr>||||
        !
      !
    !
  !
  aging|mls aging|k||
    line|line|lb/le/wa||
      <cr>||||
      !
    !
  !
  cef|cef settings|k||
    line|line|lb/le/wa||
      <cr>||||
      !
    !
  !
  netflow|netflow settings|k||
    <cr>||||
    !
    line|line|lb/le/wa||
      <cr>||||
      !
    !
  !
  flow|flow masks|k||
    line|line|lb/le/wa||
      <cr>||||
      !
    !
  !
  rate-limit|rate limiters|k||
    line|line|lb/le/wa||
      <cr>||||
      !
    !
  !
!
errdisable|error disable|k||
  recovery|error disable recovery|k||
    cause|enable error disable recovery for a cause|k||
      word|cause|k||
        <cr>||||
        !
      !
    !
    interval|error disable recovery timer|k||
      id|timer interval in seconds|o||
        <cr>||||
        !
      !
    !
  !
  detect|error disable detection|k||
    cause|enable error disable detection for a cause|k||
      word|cause|k||
        <cr>||||
        !
        shutdown|shut down the port|k||
          vlan|shut down the vlan on the port|k||
            <cr>||||
            !
          !
        !
      !
    !
  !
  flap-setting|error disable flap detection|k||
    cause|cause|k||
      word|cause|k||
        max-flaps|maximum flaps|k||
          id|number of flaps|||
            time|time period|k||
              id|seconds|||
                <cr>||||
                !
              !
            !
          !
        !
      !
    !
  !
!
vtp|configure global vtp state|k||
  domain|set the vtp domain name|k||
    word|vtp domain name|o||
      <cr>||||
      !
    !
  !
  mode|configure the vtp device mode|k||
    server|server mode|o||
      <cr>||||
      !
      vlan|vlan database|k||
        <cr>||||
        !
      !
      mst|mst database|k||
        <cr>||||
        !
      !
    !
    client|client mode|o||
      <cr>||||
      !
      vlan|vlan database|k||
        <cr>||||
        !
      !
      mst|mst database|k||
        <cr>||||
        !
      !
    !
    transparent|transparent mode|o||
      <cr>||||
      !
      vlan|vlan database|k||
        <cr>||||
        !
      !
      mst|mst database|k||
        <cr>||||
        !
      !
    !
    off|off mode|o||
      <cr>||||
      !
      vlan|vlan database|k||
        <cr>||||
        !
      !
      mst|mst database|k||
        <cr>||||
        !
      !
    !
  !
  version|set the administrative domain vtp version|k||
    id|version number|o||
      <cr>||||
      !
    !
  !
  password|set the password for the vtp domain|k||
    word|password|o||
      <cr>||||
      !
      hidden|hide the password|k||
        <cr>||||
        !
      !
      secret|the password is a secret|k||
        <cr>||||
        !
      !
    !
  !
  pruning|set the administrative domain to permit pruning|k||
    <cr>||||
    !
  !
  file|configure the file name of the vtp database|k||
    word|file name|o||
      <cr>||||
      !
    !
  !
  interface|configure the interface of the vtp updater id|k||
    word|interface name|o||
      <cr>||||
      !
      only|use only this interface's address|k||
        <cr>||||
        !
      !
    !
  !
  primary|make this device the vtp primary server|k||
    <cr>||||
    !
    vlan|vlan database|k||
      <cr>||||
      !
    !
    mst|mst database|k||
      <cr>||||
      !
    !
  !
!
dot1x|ieee 802.1x global configuration|k||
  system-auth-control|enable or disable sysauthcontrol|k/sb/o||
    <cr>||||
    !
  !
  critical|critical authentication settings|k||
    eapol|send eapol success on a critical port|k||
      <cr>||||
      !
    !
    eapol-block|block eapol on a critical port|k||
      <cr>||||
      !
    !
    recovery|recovery settings|k||
      delay|recovery delay|k||
        id|milliseconds|o||
          <cr>||||
          !
        !
      !
    !
  !
  guest-vlan|guest vlan settings|k||
    supplicant|allow supplicants into the guest vlan|k||
      <cr>||||
      !
    !
  !
  logging|dot1x logging|k||
    verbose|verbose logging|k||
      <cr>||||
      !
    !
  !
  supplicant|supplicant settings|k||
    force-multicast|force multicast eapol|k||
      <cr>||||
      !
    !
    controlled|control the supplicant transmit|k||
      <cr>||||
      !
    !
  !
  credentials|credentials profile|k||
    word|profile name|k||
      <cr>||||
      !
    !
  !
  test|test settings|k||
    line|line|lb/le/wa||
      <cr>||||
      !
    !
  !
  auth-fail|authentication failure settings|k||
    line|line|lb/le/wa||
      <cr>||||
      !
    !
  !
!
authentication|authentication manager|k||
  mac-move|mac move settings|k||
    permit|allow a mac address to move|k/o||
      <cr>||||
      !
    !
    deny|deny a mac address to move|k/o||
      <cr>||||
      !
    !
    deny-uncontrolled|deny moves to uncontrolled ports|k/o||
      <cr>||||
      !
    !
  !
  critical|critical authentication|k||
    recovery|recovery settings|k||
      delay|recovery delay|k||
        id|milliseconds|o||
          <cr>||||
          !
        !
      !
    !
  !
  logging|authentication logging|k||
    verbose|verbose logging|k||
      <cr>||||
      !
    !
  !
  display|display mode|k||
    legacy|legacy|k||
      <cr>||||
      !
    !
    new-style|new-style|k||
      <cr>||||
      !
    !
  !
  timer|timers|k||
    restart|restart timer|k||
      id|seconds|o||
        <cr>||||
        !
      !
    !
    reauthenticate|reauthentication timer|k||
      id|seconds|o||
        <cr>||||
        !
      !
    !
  !
  violation|violation settings|k||
    line|line|lb/le/wa||
      <cr>||||
      !
    !
  !
  compliance|compliance settings|k||
    line|line|lb/le/wa||
      <cr>||||
      !
    !
  !
!
access-session|access session settings|k||
  mac-move|mac move settings|k||
    deny|deny a mac address to move|k/o||
      <cr>||||
      !
    !
    deny-uncontrolled|deny moves to uncontrolled ports|k/o||
      <cr>||||
      !
    !
  !
  attributes|session attributes|k||
    filter-list|filter list|k||
      list|named list|k||
        word|list name|k||
          <cr>||||@(config-com-filter-list)# switch_sub.cfm
          !
        !
      !
    !
  !
  template|template settings|k||
    monitor|monitor templates|k||
      <cr>||||
      !
    !
  !
  monitor|monitor sessions|k||
    <cr>||||
    !
  !
  host-mode|host mode|k||
    line|line|lb/le/wa||
      <cr>||||
      !
    !
  !
  port-control|port control|k||
    line|line|lb/le/wa||
      <cr>||||
      !
    !
  !
  closed|closed|k||
    <cr>||||
    !
  !
  interface-template|interface templates|k||
    sticky|keep templates bound|k||
      <cr>||||
      !
      timer|timer|k||
        id|seconds|||
          <cr>||||
          !
        !
      !
    !
  !
  acl|session acls|k||
    default|default acl|k||
      passthrough|passthrough|k||
        <cr>||||
        !
      !
    !
  !
  authentication|authentication settings|k||
    line|line|lb/le/wa||
      <cr>||||
      !
    !
  !
!
switch|switch stack member|k||
  id|switch number|k||
    provision|provision a switch type|k||
      word|switch type|o||
        <cr>||||
        !
      !
    !
    priority|switch priority|k||
      id|priority value|o||
        <cr>||||
        !
      !
    !
    renumber|renumber the switch|k||
      id|new number|o||
        <cr>||||
        !
      !
    !
  !
  virtual|stackwise virtual|k||
    domain|domain|k||
      id|domain id|k||
        <cr>||||
        !
      !
    !
  !
!
udld|global udld configuration|k||
  enable|enable udld on fiber ports|k/o||
    <cr>||||
    !
  !
  aggressive|aggressive mode on fiber ports|k/o||
    <cr>||||
    !
  !
  message|udld message settings|k||
    time|message interval|k||
      id|seconds|o||
        <cr>||||
        !
      !
    !
  !
  recovery|error disable recovery|k||
    <cr>||||
    !
    interval|recovery interval|k||
      id|seconds|o||
        <cr>||||
        !
      !
    !
  !
!
power|power configuration|k||
  redundancy-mode|power supply redundancy mode|k||
    redundant|redundant mode|o||
      <cr>||||
      !
    !
    combined|combined mode|o||
      <cr>||||
      !
    !
  !
  redundancy|stack power redundancy|k||
    line|line|lb/le/wa/o||
      <cr>||||
      !
    !
  !
  inline|inline power|k||
    consumption|default consumption|k||
      id|milliwatts|o||
        <cr>||||
        !
      !
    !
    police|police power|k||
      <cr>||||
      !
    !
    line|line|lb/le/wa||
      <cr>||||
      !
    !
  !
  supply|power supply|k||
    line|line|lb/le/wa||
      <cr>||||
      !
    !
  !
  main-cpu|main-cpu|k||
    <cr>||||
    !
  !
!
system|system settings|k||
  <cr>||||@(config-system)# sdwan_system.cfm
  !
  mtu|system mtu|k||
    id|mtu size|o||
      <cr>||||
      !
    !
    jumbo|jumbo mtu|k||
      id|mtu size|o||
        <cr>||||
        !
      !
    !
    routing|routed mtu|k||
      id|mtu size|o||
        <cr>||||
        !
      !
    !
  !
  env|environmental settings|k||
    line|line|lb/le/wa||
      <cr>||||
      !
    !
  !
  ignore|ignore settings|k||
    line|line|lb/le/wa||
      <cr>||||
      !
    !
  !
  flowcontrol|system flow control|k||
    line|line|lb/le/wa||
      <cr>||||
      !
    !
  !
!
port-channel|port channel settings|k||
  load-balance|load balancing method|k||
    word|method|o||
      <cr>||||
      !
    !
  !
  min-links|minimum links|k||
    id|id|o||
      <cr>||||
      !
    !
  !
  auto|auto|k||
    <cr>||||
    !
  !
  protocol|channel protocol|k||
    line|line|lb/le/wa||
      <cr>||||
      !
    !
  !
!
lacp|lacp settings|k||
  system-priority|lacp system priority|k||
    id|priority value|o||
      <cr>||||
      !
    !
  !
!
monitor|monitor sessions|k||
  event-trace|tracing of system events|k||
    stacktrace|trace call stack at tracepoints|k||
      <cr>||||
      !
    !
    sequence-number|sequence numbers on trace entries|k||
      <cr>||||
      !
    !
    timestamps|timestamps on trace entries|k||
      <cr>||||
      !
      datetime|date and time|k||
        msec|msec|k||
          <cr>||||
          !
          localtime|localtime|k||
            <cr>||||
            !
          !
        !
        localtime|localtime|k||
          <cr>||||
          !
        !
      !
      uptime|uptime|k||
        <cr>||||
        !
      !
    !
    eigrp|eigrp events|k||
      perf-events|perf-events|k||
        rate-limiting|rate-limiting|k||
          id|id|o||
            <cr>||||
            !
          !
        !
      !
    !
    voip|voice events|k||
      ccsip|sip events|k||
        msg|msg|k||
          <cr>||||
          !
        !
        fsm|fsm|k||
          <cr>||||
          !
        !
        api|api|k||
          <cr>||||
          !
        !
        misc|misc|k||
          <cr>||||
          !
        !
        global|global|k||
          <cr>||||
          !
        !
        stacktrace|stacktrace|k||
          <cr>||||
          !
        !
        limit|limit|k||
          connections|connections|k||
            id|id|o||
              <cr>||||
              !
            !
          !
          memory|memory|k||
            id|id|o||
              <cr>||||
              !
            !
          !
        !
        dump|dump on failure|k||
          none|none|k||
            <cr>||||
            !
          !
          all|all|k||
            <cr>||||
            !
          !
        !
        dump-file|dump into a file|k||
          <cr>||||
          !
          line|line|lb/le/wa||
            <cr>||||
            !
          !
        !
        dump-folder|dump folder limits|k||
          size|size|k||
            id|id|||
              time|time|k||
                id|id|o||
                  <cr>||||
                  !
                !
              !
            !
          !
        !
        max-dump-limit|number of dumps|k||
          id|id|o||
            <cr>||||
            !
          !
        !
      !
    !
  !
  session|span session|k||
    id|session number|k||
      source|span source|k||
        interface|span source interface|k||
          <interfaces>|interfaces|k/lb/le/wa||
            <cr>||||
            !
          !
        !
        vlan|span source vlan|k||
          <vlans>|vlans|k/lb/le/wa||
            <cr>||||
            !
          !
        !
        remote|rspan source|k||
          vlan|rspan vlan|k||
            <vlan>|vlan id|k||
              <cr>||||
              !
            !
          !
        !
      !
      destination|span destination|k||
        interface|span destination interface|k||
          <interfaces>|interface and options|k/lb/le/wa||
            <cr>||||
            !
          !
        !
        remote|rspan destination|k||
          vlan|rspan vlan|k||
            <vlan>|vlan id|k||
              <cr>||||
              !
            !
          !
        !
      !
      filter|span filters|k||
        vlan|filter vlans|k||
          <vlans>|vlans|lb/le/wa/o||
            <cr>||||
            !
          !
        !
        ip|ip filter|k||
          line|line|lb/le/wa/o||
            <cr>||||
            !
          !
        !
        mac|mac filter|k||
          line|line|lb/le/wa/o||
            <cr>||||
            !
          !
        !
        packet-type|packet type filter|k||
          line|line|lb/le/wa/o||
            <cr>||||
            !
          !
        !
      !
      type|session type|k||
        word|type|k||
          <cr>||||@(config-mon-erspan-src)# switch_sub.cfm
          !
        !
      !
      description|session description|k||
        line|text|lb/le/wa||
          <cr>||||
          !
        !
      !
    !
  !
!
mac|mac configuration|k||
  address-table|mac address table|k||
    notification|notifications|k||
      change|mac change notifications|k||
        <cr>||||
        !
        history-size|history size|k||
          id|entries|o||
            <cr>||||
            !
          !
        !
        interval|interval|k||
          id|seconds|o||
            <cr>||||
            !
          !
        !
      !
      mac-move|mac move notifications|k||
        <cr>||||
        !
      !
      threshold|threshold notifications|k||
        <cr>||||
        !
        line|line|lb/le/wa||
          <cr>||||
          !
        !
      !
    !
    aging-time|aging time|k||
      id|seconds|o||
        <cr>||||
        !
        vlan|vlan|k||
          <vlan>|vlan id|k||
            <cr>||||
            !
          !
        !
      !
    !
    static|static mac address|k||
      h.h.h|mac address|k||
        vlan|vlan|k||
          <vlan>|vlan id|k||
            interface|interface|k||
              &interfacefile.cfm|interface type|k||
                <number>|interface number|k||
                  <cr>||||
                  !
                  <interfaces>|more interfaces|lb/le/wa||
                    <cr>||||
                    !
                  !
                !
              !
            !
            drop|drop frames|k||
              <cr>||||
              !
            !
          !
        !
      !
    !
    learning|mac learning|k||
      vlan|vlan|k||
        <vlan>|vlan id|k||
          <cr>||||
          !
        !
      !
    !
    limit|mac limits|k||
      line|line|lb/le/wa||
        <cr>||||
        !
      !
    !
    move|mac moves|k||
      line|line|lb/le/wa||
        <cr>||||
        !
      !
    !
    secure|secure addresses|k||
      line|line|lb/le/wa||
        <cr>||||
        !
      !
    !
  !
  access-list|mac access lists|k||
    extended|extended mac access list|k||
      word|list name|k||
        <cr>||||@(config-ext-macl)# switch_sub.cfm
        !
      !
    !
  !
!
transceiver|transceiver settings|k||
  type|transceiver type|k||
    all|all transceiver types|k||
      <cr>||||@(config-xcvr-type)# switch_sub.cfm
      !
    !
  !
!
device-tracking|device tracking|k||
  tracking|tracking settings|k||
    <cr>||||
    !
    auto-source|auto-source|k||
      <cr>||||
      !
      fallback|fallback|k||
        line|line|lb/le/wa||
          <cr>||||
          !
        !
      !
    !
    retry-interval|retry-interval|k||
      id|id|o||
        <cr>||||
        !
      !
    !
  !
  policy|device tracking policy|k||
    word|policy name|k||
      <cr>||||@(config-device-tracking)# switch_sub.cfm
      !
    !
  !
  logging|tracking logs|k||
    <cr>||||
    !
    line|line|lb/le/wa||
      <cr>||||
      !
    !
  !
  binding|bindings|k||
    line|line|lb/le/wa||
      <cr>||||
      !
    !
  !
  upgrade-cli|upgrade the cli|k||
    line|line|lb/le/wa||
      <cr>||||
      !
    !
  !
!
template|interface template|k||
  word|template name|k||
    <cr>||||@(config-template)# interface.cfm
    !
  !
!
flow|flexible netflow|k||
  record|flow record|k||
    word|record name|k||
      <cr>||||@(config-flow-record)# flow_record.cfm
      !
    !
  !
  exporter|flow exporter|k||
    word|exporter name|k||
      <cr>||||@(config-flow-exporter)# flow_exporter.cfm
      !
    !
  !
  monitor|flow monitor|k||
    word|monitor name|k||
      <cr>||||@(config-flow-monitor)# flow_monitor.cfm
      !
    !
  !
!
sampler|flow sampler|k||
  word|sampler name|k||
    <cr>||||@(config-sampler)# flow_monitor.cfm
    !
  !
!
fhrp|first hop redundancy|k||
  version|fhrp version|k||
    vrrp|vrrp version|k||
      v2|v2|o||
        <cr>||||
        !
      !
      v3|v3|o||
        <cr>||||
        !
      !
    !
  !
  delay|delays|k||
    line|line|lb/le/wa||
      <cr>||||
      !
    !
  !
!
sdm|switch database management|k||
  prefer|preferred template|k||
    line|line|lb/le/wa/o||
      <cr>||||
      !
    !
  !
!
stack-mac|stack mac address|k||
  persistent|persistent mac address|k||
    timer|timer|k||
      id|minutes|o||
        <cr>||||
        !
      !
    !
  !
!
macro|macro settings|k||
  auto|auto smartports|k||
    line|line|lb/le/wa||
      <cr>||||
      !
    !
  !
  name|named macro|k||
    word|macro name|k||
    !
  !
!
vstack|smart install|k/sn||
  <cr>||||
  !
!
energywise|energywise settings|k||
  line|line|lb/le/wa||
    <cr>||||
    !
  !
!
rmon|remote monitoring|k||
  line|line|lb/le/wa||
    <cr>||||
    !
  !
!
time-range|define time range entries|k||
  word|time range name|k||
    <cr>||||@(config-time-range)# time_range.cfm
    !
  !
!
parameter-map|parameter map|k||
  type|parameter map type|k||
    inspect|inspect parameters|k||
      word|parameter map name|k||
        <cr>||||@(config-profile)# param_map.cfm
        !
      !
    !
    inspect-global|global inspect parameters|k||
      <cr>||||@(config-profile)# param_map.cfm
      !
    !
    regex|regular expressions|k||
      word|parameter map name|k||
        <cr>||||@(config-profile)# param_map.cfm
        !
      !
    !
    urlfpolicy|url filter policy|k||
      line|line|lb/le/wa||
        <cr>||||@(config-profile)# param_map.cfm
        !
      !
    !
    urlfilter|url filter|k||
      line|line|lb/le/wa||
        <cr>||||@(config-profile)# param_map.cfm
        !
      !
    !
    umbrella|umbrella|k||
      global|global|k||
        <cr>||||@(config-profile)# param_map.cfm
        !
      !
    !
    ooo|out-of-order packet handling|k||
      global|global|k||
        <cr>||||@(config-profile)# param_map.cfm
        !
      !
    !
  !
!
parser|Configure parser|k||
  view|view commands|k||
    word|view name|k||
      <cr>||||@(config-view)# parser_view.cfm
      !
      superview|superview|k||
        <cr>||||@(config-view)# parser_view.cfm
        !
      !
    !
  !
  cache|parser cache|k||
    <cr>||||
    !
  !
  config|parser configuration|k||
    partition|partition the configuration|k||
      <cr>||||
      !
    !
    cache|configuration cache|k||
      <cr>||||
      !
      interface|interface|k||
        <cr>||||
        !
      !
    !
  !
  command|parser command settings|k||
    serializer|serialize the configuration commands|k||
      <cr>||||
      !
    !
  !
  maximum|parser limits|k||
    utilization|cpu utilization|k||
      1-100|percent|o||
        <cr>||||
        !
      !
    !
    latency|latency|k||
      1-10000|milliseconds|o||
        <cr>||||
        !
      !
    !
  !
!
downward-compatible-config|Generate a configuration compatible with older software|k||
  word|version|o||
    <cr>||||
    !
  !
!
shell|Configure shell command|k||
  processing|shell processing|k||
    <cr>||||
    !
    full|full|k||
      <cr>||||
      !
    !
  !
!
bsd-client|bsd client|k||
  server|server settings|k||
    url|server url|k||
      word|url|o||
        <cr>||||
        !
      !
    !
  !
!
process|process settings|k||
  cpu|cpu usage|k||
    extended|extended cpu usage|k||
      history|history size|k||
        id|id|o||
          <cr>||||
          !
        !
      !
    !
    autoprofile|automatic profiling|k||
      hog|profile cpu hogs|k||
        <cr>||||
        !
      !
    !
    statistics|statistics|k||
      limit|limit|k||
        entry-percentage|entry-percentage|k||
          id|id|||
            size|size|k||
              id|id|o||
                <cr>||||
                !
              !
            !
          !
        !
      !
    !
    threshold|threshold|k||
      type|type|k||
        total|total|k||
          rising|rising|k||
            id|id|||
              interval|interval|k||
                id|id|o||
                  <cr>||||
                  !
                !
              !
            !
          !
        !
      !
    !
  !
!
process-max-time|Maximum time for process to run before voluntarily relinquishing processor|k||
  20-200|milliseconds|o||
    <cr>||||
    !
  !
!
cef|cisco express forwarding|k||
  table|cef tables|k||
    consistency-check|consistency checks|k||
      ipv4|ipv4 tables|k||
        type|type|k||
          scan-rib-ios|scan-rib-ios|k||
            count|count|k||
              id|id|||
                period|period|k||
                  id|id|o||
                    <cr>||||
                    !
                  !
                !
              !
            !
          !
          scan-ios-rib|scan-ios-rib|k||
            count|count|k||
              id|id|||
                period|period|k||
                  id|id|o||
                    <cr>||||
                    !
                  !
                !
              !
            !
          !
        !
        data-checking|data-checking|k||
          <cr>||||
          !
        !
        error-message|error-message|k||
          <cr>||||
          !
        !
        auto-repair|auto-repair|k||
          <cr>||||
          !
          delay|delay|k||
            id|id|||
              holddown|holddown|k||
                id|id|o||
                  <cr>||||
                  !
                !
              !
            !
          !
        !
      !
      ipv6|ipv6 tables|k||
        type|type|k||
          scan-rib-ios|scan-rib-ios|k||
            count|count|k||
              id|id|||
                period|period|k||
                  id|id|o||
                    <cr>||||
                    !
                  !
                !
              !
            !
          !
          scan-ios-rib|scan-ios-rib|k||
            count|count|k||
              id|id|||
                period|period|k||
                  id|id|o||
                    <cr>||||
                    !
                  !
                !
              !
            !
          !
        !
        data-checking|data-checking|k||
          <cr>||||
          !
        !
        error-message|error-message|k||
          <cr>||||
          !
        !
        auto-repair|auto-repair|k||
          <cr>||||
          !
          delay|delay|k||
            id|id|||
              holddown|holddown|k||
                id|id|o||
                  <cr>||||
                  !
                !
              !
            !
          !
        !
      !
    !
    vrf|vrf tables|k||
      tree|table tree|k||
        ipv4|ipv4|k||
          type|type|k||
            mtrie|mtrie|k||
              <cr>||||
              !
              short-mask-protection|short-mask-protection|k||
                id|id|||
                  stride-pattern|stride-pattern|k||
                    word|word|||
                      <cr>||||
                      !
                      hardware-api-notify|hardware-api-notify|k||
                        on|on|k||
                          <cr>||||
                          !
                        !
                        off|off|k||
                          <cr>||||
                          !
                        !
                      !
                    !
                  !
                !
              !
            !
            rtree|rtree|k||
              <cr>||||
              !
            !
          !
        !
        ipv6|ipv6|k||
          type|type|k||
            mtrie|mtrie|k||
              <cr>||||
              !
              short-mask-protection|short-mask-protection|k||
                id|id|||
                  stride-pattern|stride-pattern|k||
                    word|word|||
                      <cr>||||
                      !
                      hardware-api-notify|hardware-api-notify|k||
                        on|on|k||
                          <cr>||||
                          !
                        !
                        off|off|k||
                          <cr>||||
                          !
                        !
                      !
                    !
                  !
                !
              !
            !
            rtree|rtree|k||
              <cr>||||
              !
            !
          !
        !
      !
    !
    output-chain|output chain|k||
      build|building of the chain|k||
        favor|what to favor|k||
          default|default|k||
            <cr>||||
            !
          !
          convergence-speed|convergence-speed|k||
            <cr>||||
            !
          !
          memory-utilization|memory-utilization|k||
            <cr>||||
            !
          !
        !
      !
    !
    rate-monitor-period|rate monitoring period|k||
      id|seconds|o||
        <cr>||||
        !
      !
    !
  !
!
location|Global location configuration commands|k||
  prefer|location source preference|k||
    static|static locations|k||
      weight|weight|k||
        0-255|0-255|o||
          <cr>||||
          !
        !
      !
    !
    lldp-med|locations learned by lldp-med|k||
      weight|weight|k||
        0-255|0-255|o||
          <cr>||||
          !
        !
      !
    !
    cdp|locations learned by cdp|k||
      weight|weight|k||
        0-255|0-255|o||
          <cr>||||
          !
        !
      !
    !
  !
!
nmsp|NMSP Commands|k||
  notification|notifications|k||
    interval|notification interval|k||
      location|location|k||
        1-30|seconds|o||
          <cr>||||
          !
        !
      !
      rssi|rssi|k||
        word|word|||
          1-30|1-30|o||
            <cr>||||
            !
          !
        !
      !
    !
  !
!
prompt|Set system's prompt|k||
  config|configuration prompt|k||
    hostname-length|host name characters shown|k||
      0-20|0-20|o||
        <cr>||||
        !
      !
    !
  !
!
device-sensor|IOS Sensor Commands|k||
  notify|notification|k||
    all-changes|all-changes|k||
      <cr>||||
      !
    !
    new-tlvs|new-tlvs|k||
      <cr>||||
      !
    !
  !
!
kerberos|Configure Kerberos|k||
  timeout|timeout|k||
    id|id|o||
      <cr>||||
      !
    !
  !
  retry|retry|k||
    id|id|o||
      <cr>||||
      !
    !
  !
  processes|processes|k||
    id|id|o||
      <cr>||||
      !
    !
  !
!
frame-relay|global frame relay configuration commands|k||
  address|addresses|k||
    registration|address registration|k||
      auto-address|auto-address|k||
        <cr>||||
        !
      !
    !
  !
!
mab|mac authentication bypass|k||
  request|request settings|k||
    format|request format|k||
      attribute|radius attribute|k||
        1|called station id|k||
          <cr>||||
          !
        !
        2|user password|k||
          <cr>||||
          !
        !
        32|nas identifier|k||
          <cr>||||
          !
          line|line|lb/le/wa||
            <cr>||||
            !
          !
        !
      !
    !
  !
  logging|mab logging|k||
    verbose|verbose|k||
      <cr>||||
      !
    !
  !
!
clns|Global CLNS configuration subcommands|k||
  configuration-time|configuration time|k||
    id|seconds|o||
      <cr>||||
      !
    !
  !
  holding-time|holding time|k||
    id|seconds|o||
      <cr>||||
      !
    !
  !
  packet-lifetime|packet lifetime|k||
    id|id|o||
      <cr>||||
      !
    !
  !
  security|security option|k||
    pass-through|pass-through|k||
      <cr>||||
      !
    !
  !
  want-erpdu|send error pdus|k||
    <cr>||||
    !
  !
  routing|clns routing|k||
    <cr>||||
    !
  !
  net|net|k||
    word|word|k||
      <cr>||||
      !
    !
  !
!
isis|Global ISIS configuration subcommands|k||
  display|display options|k||
    delimiter|delimiter|k||
      return|return|k||
        id|id|o||
          <cr>||||
          !
        !
      !
    !
  !
!
media-proxy|media proxy|k||
  services|services|k||
    rate-limit|rate-limit|k||
      id|id|o||
        <cr>||||
        !
      !
    !
  !
!
metadata|metadata settings|k||
  source|metadata source|k||
    nbar|nbar|k||
      <cr>||||
      !
    !
  !
  flow|flow metadata|k||
    transmit|transmit|k||
      <cr>||||
      !
    !
  !
!
per-call|per-call settings|k||
  export|export targets|k||
    primary|primary|k||
      word|word|||
        secondary|secondary|k||
          word|word|o||
            <cr>||||
            !
          !
        !
      !
    !
  !
  shutdown|shutdown|k||
    <cr>||||
    !
  !
!
virtual-template|virtual template settings|k||
  subinterface|subinterfaces for virtual templates|k||
    <cr>||||
    !
  !
  snmp|snmp for virtual access interfaces|k||
    <cr>||||
    !
  !
!
http|http settings|k||
  client|http client|k||
    cache|cache|k||
      memory|memory|k||
        pool|pool|k||
          id|id|o||
            <cr>||||
            !
          !
        !
        file|file|k||
          id|id|o||
            <cr>||||
            !
          !
        !
      !
      query|query|k||
        <cr>||||
        !
      !
      ager|ager|k||
        interval|interval|k||
          id|id|o||
            <cr>||||
            !
          !
        !
      !
    !
    cookie|enable cookies|k||
      <cr>||||
      !
    !
    connection|connection settings|k||
      persistent|persistent|k||
        <cr>||||
        !
      !
      timeout|timeout|k||
        1-60|seconds|o||
          <cr>||||
          !
        !
      !
      idle|idle|k||
        timeout|timeout|k||
          1-600|seconds|o||
            <cr>||||
            !
          !
        !
      !
    !
    response|response settings|k||
      timeout|timeout|k||
        1-300|seconds|o||
          <cr>||||
          !
        !
      !
    !
    secure-trustpoint|secure-trustpoint|k||
      word|word|o||
        <cr>||||
        !
      !
    !
    source-interface|source-interface|k||
      &interfacefile.cfm|interface type|k||
        <number>|interface number|k||
          <cr>||||
          !
        !
      !
    !
  !
!
scripting|scripting conf commands|k||
  tcl|tcl scripts|k||
    low-memory|low-memory|k||
      id|id|o||
        <cr>||||
        !
      !
    !
    trustpoint|trustpoint|k||
      untrusted|untrusted|k||
        execute|execute|k||
          <cr>||||
          !
        !
        safe-execute|safe-execute|k||
          <cr>||||
          !
        !
        terminate|terminate|k||
          <cr>||||
          !
        !
      !
      name|name|k||
        word|word|k||
          <cr>||||
          !
        !
      !
    !
    secure-mode|secure-mode|k||
      <cr>||||
      !
    !
    init|init|k||
      word|word|o||
        <cr>||||
        !
      !
    !
    encdir|encdir|k||
      word|word|o||
        <cr>||||
        !
      !
    !
  !
!
csdb|conversation state database|k||
  tcp|tcp|k||
    synwait-time|synwait-time|k||
      id|id|o||
        <cr>||||
        !
      !
    !
    idle-time|idle-time|k||
      id|id|o||
        <cr>||||
        !
      !
    !
    finwait-time|finwait-time|k||
      id|id|o||
        <cr>||||
        !
      !
    !
    reassembly|reassembly|k||
      max-memory|max-memory|k||
        id|id|o||
          <cr>||||
          !
        !
      !
      max-queue-length|max-queue-length|k||
        id|id|o||
          <cr>||||
          !
        !
      !
    !
  !
  udp|udp|k||
    idle-time|idle-time|k||
      id|id|o||
        <cr>||||
        !
      !
    !
  !
  icmp|icmp|k||
    idle-time|idle-time|k||
      id|id|o||
        <cr>||||
        !
      !
    !
  !
  session|session|k||
    max-session|max-session|k||
      id|id|o||
        <cr>||||
        !
      !
    !
  !
  alarm|alarm|k||
    <cr>||||
    !
  !
!
terminal-queue|terminal queue settings|k||
  entry-retry-interval|entry-retry-interval|k||
    id|id|o||
      <cr>||||
      !
    !
  !
!
route-tag|route tag settings|k||
  notation|notation|k||
    dotted-decimal|dotted-decimal|k||
      <cr>||||
      !
    !
  !
!
mop|Configure the DEC MOP Server|k||
  device-code|device-code|k||
    cisco|cisco|k||
      <cr>||||
      !
    !
    ds200|ds200|k||
      <cr>||||
      !
    !
  !
  retransmit-timer|retransmit-timer|k||
    1-20|1-20|o||
      <cr>||||
      !
    !
  !
  retries|retries|k||
    3-24|3-24|o||
      <cr>||||
      !
    !
  !
!
diameter|diameter settings|k||
  timer|timer|k||
    connection|connection|k||
      id|id|o||
        <cr>||||
        !
      !
    !
    watchdog|watchdog|k||
      id|id|o||
        <cr>||||
        !
      !
    !
    transaction|transaction|k||
      id|id|o||
        <cr>||||
        !
      !
    !
  !
  redundancy|redundancy|k||
    <cr>||||
    !
  !
  origin|origin|k||
    realm|realm|k||
      word|word|o||
        <cr>||||
        !
      !
    !
    host|host|k||
      word|word|o||
        <cr>||||
        !
      !
    !
  !
!
default-value|Default character-bits values|k||
  exec-character-bits|exec-character-bits|k||
    7|7|k||
      <cr>||||
      !
    !
    8|8|k||
      <cr>||||
      !
    !
  !
  special-character-bits|special-character-bits|k||
    7|7|k||
      <cr>||||
      !
    !
    8|8|k||
      <cr>||||
      !
    !
  !
  data-character-bits|data-character-bits|k||
    7|7|k||
      <cr>||||
      !
    !
    8|8|k||
      <cr>||||
      !
    !
  !
!
configuration|Configuration access|k||
  mode|configuration mode|k||
    exclusive|exclusive|k||
      <cr>||||
      !
      auto|auto|k||
        <cr>||||
        !
      !
      manual|manual|k||
        <cr>||||
        !
      !
    !
  !
!
exception|Exception handling|k||
  crashinfo|crash information|k||
    file|file|k||
      word|word|o||
        <cr>||||
        !
      !
    !
    buffersize|buffersize|k||
      id|id|o||
        <cr>||||
        !
      !
    !
    maximum|maximum|k||
      files|files|k||
        id|id|o||
          <cr>||||
          !
        !
      !
    !
    dump|dump|k||
      garbage-detector|garbage-detector|k||
        <cr>||||
        !
      !
    !
  !
  data-corruption|data-corruption|k||
    buffer|buffer|k||
      truncate|truncate|k||
        <cr>||||
        !
      !
      log|log|k||
        <cr>||||
        !
      !
    !
  !
  memory|memory|k||
    ignore|ignore|k||
      overflow|overflow|k||
        io|io|k||
          <cr>||||
          !
        !
        processor|processor|k||
          <cr>||||
          !
        !
      !
    !
  !
  dump|dump|k||
    a.b.c.d|a.b.c.d|||
      <cr>||||
      !
    !
  !
  protocol|protocol|k||
    ftp|ftp|k||
      <cr>||||
      !
    !
    tftp|tftp|k||
      <cr>||||
      !
    !
    rcp|rcp|k||
      <cr>||||
      !
    !
  !
  region-size|region-size|k||
    id|id|o||
      <cr>||||
      !
    !
  !
!
wsma|Configure Web Services Management Agents|k||
  id|identity|||
    hostname|hostname|k||
      <cr>||||
      !
    !
  !
  agent|agent|k||
    exec|exec|k||
      <cr>||||
      !
      profile|profile|k||
        word|word|||
          <cr>||||
          !
        !
      !
    !
    config|config|k||
      <cr>||||
      !
      profile|profile|k||
        word|word|||
          <cr>||||
          !
        !
      !
    !
    filesys|filesys|k||
      <cr>||||
      !
      profile|profile|k||
        word|word|||
          <cr>||||
          !
        !
      !
    !
    notify|notify|k||
      <cr>||||
      !
      profile|profile|k||
        word|word|||
          <cr>||||
          !
        !
      !
    !
  !
  profile|profile|k||
    listener|listener|k||
      word|word|k||
        <cr>||||@(config-wsma-listen)# generic.cfm
        !
      !
    !
  !
!
xmpp|xmpp settings|k||
  id|id|||
    hostname|hostname|k||
      <cr>||||
      !
    !
  !
!
bulkstat|bulk statistics|k||
  resource|resource|k||
    limit|limit|k||
      memory|memory|k||
        id|id|o||
          <cr>||||
          !
        !
      !
    !
  !
!
webvpn|WebVPN commands|k||
  sslvpn-vif|ssl vpn virtual interface|k||
    nat|nat|k||
      inside|inside|k||
        <cr>||||
        !
      !
      outside|outside|k||
        <cr>||||
        !
      !
      enable|enable|k||
        <cr>||||
        !
      !
    !
  !
!
cns|CNS agents|k||
  id|id|||
    hostname|hostname|k||
      <cr>||||
      !
      event|event|k||
        <cr>||||
        !
      !
      image|image|k||
        <cr>||||
        !
      !
    !
    string|string|k||
      word|word|||
        <cr>||||
        !
      !
    !
    a.b.c.d|a.b.c.d|||
      <cr>||||
      !
    !
  !
  image|image|k||
    retry|retry|k||
      id|id|o||
        <cr>||||
        !
      !
    !
  !
  trusted-server|trusted-server|k||
    line|line|lb/le/wa||
      <cr>||||
      !
    !
  !
!
ppp|ppp settings|k||
  hold-queue|hold-queue|k||
    id|id|o||
      <cr>||||
      !
    !
  !
  packet|packet|k||
    throttle|throttle|k||
      id|id|||
        id|id|||
          id|id|o||
            <cr>||||
            !
          !
        !
      !
    !
  !
!
l2|layer 2 settings|k||
  router-id|layer 2 router id|k||
    a.b.c.d|a.b.c.d|o||
      <cr>||||
      !
    !
  !
!
l2vpn|layer 2 vpn|k||
  vfi|virtual forwarding instance|k||
    context|vfi context|k||
      word|vfi name|k||
        <cr>||||@(config-vfi)# l2vpn_vfi.cfm
        !
      !
    !
  !
  evpn|ethernet vpn|k||
    <cr>||||@(config-evpn)# l2vpn_evpn.cfm
    !
    instance|instance|k||
      1-65535|1-65535|k||
        vlan-based|vlan-based|k||
          <cr>||||@(config-evpn-evi)# l2vpn_evpn.cfm
          !
        !
        vlan-bundle|vlan-bundle|k||
          <cr>||||@(config-evpn-evi)# l2vpn_evpn.cfm
          !
        !
        vlan-aware|vlan-aware|k||
          <cr>||||@(config-evpn-evi)# l2vpn_evpn.cfm
          !
        !
      !
    !
  !
  xconnect|cross connect|k||
    context|context|k||
      word|word|k||
        <cr>||||@(config-xconnect)# l2vpn_xconnect.cfm
        !
      !
    !
  !
  router-id|router-id|k||
    a.b.c.d|a.b.c.d|o||
      <cr>||||
      !
    !
  !
!
bridge-domain|Bridge-domain configuration|k||
  1-16000|bridge domain number|k||
    <cr>||||@(config-bdomain)# bridge_domain.cfm
    !
  !
!
sdwan|sd-wan configuration|k||
  <cr>||||@(config-sdwan)# sdwan.cfm
  !
!
segment-routing|Segment Routing|k||
  mpls|segment routing over mpls|k||
    <cr>||||@(config-srmpls)# segment_routing.cfm
    !
  !
!
identity|Identity Configuration commands|k||
  profile|identity profile|k||
    default|default|k||
      <cr>||||@(config-identity-prof)# generic.cfm
      !
    !
    dot1x|dot1x|k||
      <cr>||||@(config-identity-prof)# generic.cfm
      !
    !
    eapoudp|eapoudp|k||
      <cr>||||@(config-identity-prof)# generic.cfm
      !
    !
    word|word|k||
      <cr>||||@(config-identity-prof)# generic.cfm
      !
    !
  !
!
nls|network location settings|k||
  resp-timeout|resp-timeout|k||
    id|id|o||
      <cr>||||
      !
    !
  !
!
cpd|cable phone discovery|k||
  cr-id|cr-id|k||
    id|id|o||
      <cr>||||
      !
    !
  !
!
policy-manager|policy manager|k||
  policy|policy|k||
    enable|enable|k||
      <cr>||||
      !
    !
  !
!
mac-address-table|Configure the MAC address table|k||
  static|static entries|k||
    h.h.h|h.h.h|k||
      interface|interface|k||
        &interfacefile.cfm|interface type|k||
          <number>|interface number|k||
            <cr>||||
            !
            vlan|vlan|k||
              1-4094|1-4094|k||
                <cr>||||
                !
              !
            !
          !
        !
      !
      vlan|vlan|k||
        1-4094|1-4094|k||
          interface|interface|k||
            &interfacefile.cfm|interface type|k||
              <number>|interface number|k||
                <cr>||||
                !
              !
            !
          !
        !
      !
    !
  !
  aging-time|aging-time|k||
    id|id|o||
      <cr>||||
      !
    !
  !
!
config-register|Define the configuration register|k||
  word|configuration register value|o||
    <cr>||||
    !
  !
!
auto|Configure Automation|k||
  qos|automatic quality of service|k||
    srnd4|the srnd4 model|k||
      <cr>||||
      !
    !
    global|global|k||
      compact|compact|k||
        <cr>||||
        !
      !
    !
  !
!
service-routing|Configure service-routing|k||
  capabilities-manager|capabilities-manager|k||
    <cr>||||
    !
  !
!
file|Adjust file system parameters|k||
  privilege|privilege|k||
    0-15|0-15|o||
      <cr>||||
      !
    !
  !
  prompt|prompt|k||
    alert|alert|k||
      <cr>||||
      !
    !
    noisy|noisy|k||
      <cr>||||
      !
    !
    quiet|quiet|k||
      <cr>||||
      !
    !
  !
  verify|verify|k||
    auto|auto|k||
      <cr>||||
      !
    !
  !
!
voice|voice configuration|k||
  service|voice service|k||
    voip|voice over ip|k||
      <cr>||||@(config-voi-serv)# voice_service.cfm
      !
    !
    pots|plain old telephone service|k||
      <cr>||||@(config-voi-serv)# voice_service.cfm
      !
    !
  !
  class|voice class|k||
    codec|codec preference list|k||
      <1-10000>|voice class tag|k||
        <cr>||||@(config-class)# voice_class_codec.cfm
        !
      !
    !
    uri|uniform resource identifier class|k||
      word|uri class tag|k||
        sip|sip uri|k||
          <cr>||||@(config-voice-uri-class)# generic.cfm
          !
        !
        tel|telephone uri|k||
          <cr>||||@(config-voice-uri-class)# generic.cfm
          !
        !
      !
      sip|sip uri settings|k||
        preference|part of the uri matched first|k||
          user-id|user-id first|k/o||
            host|then the host|k||
              <cr>||||
              !
            !
          !
          host|host first|k/o||
            user-id|then the user-id|k||
              <cr>||||
              !
            !
          !
        !
      !
    !
    h323|h323 voice class|k||
      <1-10000>|voice class tag|k||
        <cr>||||@(config-class)# generic.cfm
        !
      !
    !
    sip-profiles|sip profiles|k||
      <1-10000>|voice class tag|k||
        <cr>||||@(config-class)# generic.cfm
        !
      !
    !
    e164-pattern-map|e164 pattern map|k||
      <1-10000>|voice class tag|k||
        <cr>||||@(config-class)# generic.cfm
        !
      !
    !
    dpg|dial peer group|k||
      <1-10000>|voice class tag|k||
        <cr>||||@(config-class)# generic.cfm
        !
      !
    !
  !
  translation-rule|translation rule|k||
    id|id|k||
      <cr>||||@(config-translate)# generic.cfm
      !
    !
  !
  translation-profile|translation profile|k||
    word|word|k||
      <cr>||||@(config-translate)# generic.cfm
      !
    !
  !
  rtp|real-time transport protocol|k||
    send-recv|establish a two-way voice path on connect|k||
      <cr>||||
      !
    !
  !
  call|voice call settings|k||
    trap|voice call traps|k||
      deviation|disconnect cause that raises a trap|k||
        <1-127>|cause code|o||
          <cr>||||
          !
          vad|with voice activity detection|k||
            <cr>||||
            !
          !
        !
      !
    !
    send-alert|send alert instead of progress|k/sb/o||
      <cr>||||
      !
    !
    disc-pi-off|no disconnect with progress indicator|k/sb/o||
      <cr>||||
      !
    !
    convert-discpi-to-prog|convert disconnect with progress indicator to progress|k/sb/o||
      <cr>||||
      !
    !
    debug|debug header format|k||
      full-guid|the whole call identifier|k/sb/o||
        <cr>||||
        !
      !
      short-header|the short header|k||
        <cr>||||
        !
      !
    !
    carrier|carrier capacity|k||
      capacity|capacity settings|k||
        timer|capacity timer|k||
          interval|interval between capacity updates|k||
            <1-1440>|minutes|o||
              <cr>||||
              !
            !
          !
        !
        mir|maximum update rate|k||
          id|rate|o||
            <cr>||||
            !
          !
        !
        stw|sliding time window|k||
          id|minutes|o||
            <cr>||||
            !
          !
        !
        reporting|capacity reporting|k||
          maxima|report the maxima|k/sb/o||
            <cr>||||
            !
          !
          inflection|report the inflection points|k/sb/o||
            <cr>||||
            !
          !
        !
      !
      trigger|capacity triggers|k||
        percent-change|change in per cent that triggers a report|k||
          <1-100>|per cent|o||
            <cr>||||
            !
          !
        !
        lwm|low water mark|k||
          <1-100>|per cent|o||
            <cr>||||
            !
          !
        !
        hwm|high water mark|k||
          <1-100>|per cent|o||
            <cr>||||
            !
          !
        !
      !
      csr|call success rate|k||
        reporting|call success rate reporting|k||
          interval|reporting interval|k||
            <1-1440>|minutes|o||
              <cr>||||
              !
            !
          !
        !
        recording|call success rate recording|k||
          interval|recording interval|k||
            <1-1440>|minutes|o||
              <cr>||||
              !
            !
          !
        !
        growth|call success rate growth|k||
          interval|growth interval|k||
            <1-1440>|minutes|o||
              <cr>||||
              !
            !
          !
        !
        data-points|number of data points|k||
          <1-1440>|data points|o||
            <cr>||||
            !
          !
        !
      !
    !
    trunkgroup|trunk group capacity|k||
      capacity|capacity settings|k||
        timer|capacity timer|k||
          interval|interval between capacity updates|k||
            <1-1440>|minutes|o||
              <cr>||||
              !
            !
          !
        !
        mir|maximum update rate|k||
          id|rate|o||
            <cr>||||
            !
          !
        !
        stw|sliding time window|k||
          id|minutes|o||
            <cr>||||
            !
          !
        !
        reporting|capacity reporting|k||
          maxima|report the maxima|k/sb/o||
            <cr>||||
            !
          !
          inflection|report the inflection points|k/sb/o||
            <cr>||||
            !
          !
        !
      !
      trigger|capacity triggers|k||
        percent-change|change in per cent that triggers a report|k||
          <1-100>|per cent|o||
            <cr>||||
            !
          !
        !
        lwm|low water mark|k||
          <1-100>|per cent|o||
            <cr>||||
            !
          !
        !
        hwm|high water mark|k||
          <1-100>|per cent|o||
            <cr>||||
            !
          !
        !
      !
      csr|call success rate|k||
        reporting|call success rate reporting|k||
          interval|reporting interval|k||
            <1-1440>|minutes|o||
              <cr>||||
              !
            !
          !
        !
        recording|call success rate recording|k||
          interval|recording interval|k||
            <1-1440>|minutes|o||
              <cr>||||
              !
            !
          !
        !
        growth|call success rate growth|k||
          interval|growth interval|k||
            <1-1440>|minutes|o||
              <cr>||||
              !
            !
          !
        !
        data-points|number of data points|k||
          <1-1440>|data points|o||
            <cr>||||
            !
          !
        !
      !
    !
    prefix|prefix capacity|k||
      capacity|capacity settings|k||
        timer|capacity timer|k||
          interval|interval between capacity updates|k||
            <1-1440>|minutes|o||
              <cr>||||
              !
            !
          !
        !
        mir|maximum update rate|k||
          id|rate|o||
            <cr>||||
            !
          !
        !
        stw|sliding time window|k||
          id|minutes|o||
            <cr>||||
            !
          !
        !
        reporting|capacity reporting|k||
          maxima|report the maxima|k/sb/o||
            <cr>||||
            !
          !
          inflection|report the inflection points|k/sb/o||
            <cr>||||
            !
          !
        !
      !
      trigger|capacity triggers|k||
        percent-change|change in per cent that triggers a report|k||
          <1-100>|per cent|o||
            <cr>||||
            !
          !
        !
        lwm|low water mark|k||
          <1-100>|per cent|o||
            <cr>||||
            !
          !
        !
        hwm|high water mark|k||
          <1-100>|per cent|o||
            <cr>||||
            !
          !
        !
      !
      csr|call success rate|k||
        reporting|call success rate reporting|k||
          interval|reporting interval|k||
            <1-1440>|minutes|o||
              <cr>||||
              !
            !
          !
        !
        recording|call success rate recording|k||
          interval|recording interval|k||
            <1-1440>|minutes|o||
              <cr>||||
              !
            !
          !
        !
        growth|call success rate growth|k||
          interval|growth interval|k||
            <1-1440>|minutes|o||
              <cr>||||
              !
            !
          !
        !
        data-points|number of data points|k||
          <1-1440>|data points|o||
            <cr>||||
            !
          !
        !
      !
    !
  !
  disc-pi-incoming-on|disconnect with progress indicator on incoming calls|k/sb/o||
    <cr>||||
    !
  !
  vad-time|time before voice activity detection silences|k||
    <250-65536>|milliseconds|o||
      <cr>||||
      !
    !
  !
  statistics|voice statistics|k||
    max-storage-duration|longest time statistics are kept|k||
      <cr>||||
      !
      day|days|k||
        <1-2>|days|o||
          <cr>||||
          !
        !
      !
      hour|hours|k||
        <1-48>|hours|o||
          <cr>||||
          !
        !
      !
      minute|minutes|k||
        <1-2880>|minutes|o||
          <cr>||||
          !
        !
      !
    !
    display-format|display format|k||
      separator|field separator|k||
        <cr>||||
        !
        comma|comma|k/o||
          <cr>||||
          !
        !
        semicolon|semicolon|k/o||
          <cr>||||
          !
        !
        tab|tab|k/o||
          <cr>||||
          !
        !
      !
    !
    field-params|field parameters|k||
      mcd|media connection drop|k||
        id|threshold|o||
          <cr>||||
          !
        !
      !
      lost-packet|lost packets|k||
        id|threshold|o||
          <cr>||||
          !
        !
      !
      packet-latency|packet latency|k||
        id|milliseconds|o||
          <cr>||||
          !
        !
      !
      packet-jitter|packet jitter|k||
        id|milliseconds|o||
          <cr>||||
          !
        !
      !
    !
    push|push statistics to a server|k||
      ftp|by ftp|k||
        max-file-size|largest file|k||
          id|bytes|o||
            <cr>||||
            !
          !
        !
      !
    !
    type|statistics types|k||
      csr|call success rate|k||
        <cr>||||
        !
      !
      iec|internal error codes|k||
        <cr>||||
        !
      !
    !
  !
  persistent-storage|keep voice data over a reload|k/sb/o||
    <cr>||||
    !
  !
  pcm|pulse code modulation|k||
    capture|capture pcm data|k||
      buffer|capture buffer|k/o||
        <cr>||sb||
        !
        id|buffer size|o||
          <cr>||||
          !
        !
      !
      destination|capture destination|k/o||
        <cr>||sb||
        !
        word|url|o||
          <cr>||||
          !
        !
      !
      on-demand-trigger|capture on a trigger|k/sb/o||
        <cr>||||
        !
      !
      user-trigger-string|digit strings that start and stop a capture|k||
        word|start string|o||
          word|stop string|||
            stream|streams|k||
              id|stream bit map|||
                duration|how long the capture runs|k||
                  id|minutes, 0 without end|||
                    <cr>||||
                    !
                  !
                !
              !
            !
          !
        !
      !
    !
  !
  dsp|digital signal processors|k||
    waitstate|dsp wait states|k||
      id|wait states|o||
        <cr>||||
        !
      !
    !
  !
  register|voice register|k||
    global|global sip phone settings|k||
      <cr>||||@(config-register-global)# generic.cfm
      !
    !
    pool|sip phone pool|k||
      <1-100>|pool tag|k||
        <cr>||||@(config-register-pool)# generic.cfm
        !
      !
    !
    dn|sip directory number|k||
      <1-720>|directory number tag|k||
        <cr>||||@(config-register-dn)# generic.cfm
        !
      !
    !
  !
!
voice-port|voice port configuration|k||
  word|voice port (slot/subunit/port, or slot/port:ds0-group)|k||
    <cr>||||@(config-voiceport)# voice_port.cfm
    !
  !
!
dial-peer|dial peer configuration|k||
  cor|class of restriction|k||
    custom|custom|k||
      <cr>||||@(config-dp-cor)# generic.cfm
      !
    !
    list|list|k||
      word|word|k||
        <cr>||||@(config-dp-corlist)# generic.cfm
        !
      !
    !
  !
  voice|voice dial peer|k||
    <1-1073741823>|dial peer tag|k||
      voip|voice over ip|k||
        <cr>||||@(config-dial-peer)# dial_peer.cfm
        !
      !
      pots|plain old telephone service|k||
        <cr>||||@(config-dial-peer)# dial_peer.cfm
        !
      !
      vofr|voice over frame relay|k||
        <cr>||||@(config-dial-peer)# dial_peer.cfm
        !
      !
      voatm|voice over atm|k||
        <cr>||||@(config-dial-peer)# dial_peer.cfm
        !
      !
      mmoip|multimedia mail over ip|k||
        <cr>||||@(config-dial-peer)# dial_peer.cfm
        !
      !
    !
  !
  hunt|dial peer hunting choice|k||
    id|hunting choice|o||
      <cr>||||
      !
    !
  !
  terminator|end of a dialled number|k||
    word|terminating character|o||
      <cr>||||
      !
    !
  !
  outbound|outbound dial peers|k||
    status-check|check the status of outbound dial peers|k||
      pots|pots dial peers|k||
        <cr>||||
        !
      !
      voip|voip dial peers|k||
        <cr>||||
        !
      !
    !
  !
  no-match|when no dial peer matches|k||
    isdn|isdn calls|k||
      disconnect-cause|disconnect cause|k||
        <cr>||||
        !
        <1-127>|cause code|o||
          <cr>||||
          !
        !
      !
    !
  !
  search|dial peer search|k||
    type|order of the search|k||
      data|data dial peers|k/o||
        voice|then voice dial peers|k||
          <cr>||||
          !
        !
      !
      voice|voice dial peers|k/o||
        data|then data dial peers|k||
          <cr>||||
          !
        !
      !
      none|no preference|k/o||
        <cr>||||
        !
      !
    !
  !
!
sip-ua|sip user agent configuration|k||
  <cr>||||@(config-sip-ua)# sip_ua.cfm
  !
!
isdn|isdn settings|k||
  switch-type|isdn switch type|k||
    basic-1tr6|1tr6 switch type for germany|k/o||
      <cr>||||
      !
    !
    basic-5ess|at&t 5ess switch type for the u.s.|k/o||
      <cr>||||
      !
    !
    basic-dms100|northern dms-100 switch type|k/o||
      <cr>||||
      !
    !
    basic-net3|net3 switch type for the uk and others|k/o||
      <cr>||||
      !
    !
    basic-ni|national isdn switch type|k/o||
      <cr>||||
      !
    !
    basic-qsig|qsig switch type|k/o||
      <cr>||||
      !
    !
    basic-ts013|ts013 switch type for australia|k/o||
      <cr>||||
      !
    !
    primary-4ess|lucent 4ess switch type for the u.s.|k/o||
      <cr>||||
      !
    !
    primary-5ess|lucent 5ess switch type for the u.s.|k/o||
      <cr>||||
      !
    !
    primary-dms100|northern telecom dms-100 switch type|k/o||
      <cr>||||
      !
    !
    primary-net5|net5 switch type for the uk, europe, asia and australia|k/o||
      <cr>||||
      !
    !
    primary-ni|national isdn switch type|k/o||
      <cr>||||
      !
    !
    primary-ntt|japan switch type|k/o||
      <cr>||||
      !
    !
    primary-qsig|qsig switch type|k/o||
      <cr>||||
      !
    !
    primary-ts014|ts014 switch type for australia|k/o||
      <cr>||||
      !
    !
  !
  voice-call-failure|cause code for a failed voice call|k||
    id|cause code|o||
      <cr>||||
      !
    !
  !
!
ccm-manager|call manager settings|k||
  switchback|switchback to the primary call manager|k||
    graceful|when the calls have ended|k/o||
      <cr>||||
      !
    !
    immediate|at once|k/o||
      <cr>||||
      !
    !
    uptime-delay|after the primary has been up|k/o||
      <1-1440>|minutes|||
        <cr>||||
        !
      !
    !
  !
  application|call manager application|k||
    redundant|redundancy|k||
      port|port of the redundancy link|k||
        id|port number|o||
          <cr>||||
          !
        !
      !
    !
  !
  fax|fax settings of the voice service|k||
    protocol|fax relay protocol|k||
      cisco|cisco fax relay|k/o||
        <cr>||||
        !
      !
      none|no fax relay|k/o||
        <cr>||||
        !
      !
    !
  !
  shut-interfaces-tftp-fails|shut the interfaces when the configuration download fails|k||
    <1-1000>|failed downloads|o||
      <cr>||||
      !
    !
  !
  mgcp|media gateway control protocol|k||
    <cr>||||
    !
  !
  config|download the configuration|k||
    <cr>||||
    !
    server|tftp servers|k||
      a.b.c.d|server address|k||
        <cr>||||
        !
      !
    !
  !
  redundant-host|backup call managers|k||
    word|host|o||
      <cr>||||
      !
      word|second host|||
        <cr>||||
        !
      !
    !
  !
!
ivr|interactive voice response|k||
  prompt|prompts|k||
    cutoff-threshold|prompt cut-off|k||
      id|milliseconds|o||
        <cr>||||
        !
      !
    !
    streamed|prompts that are streamed|k||
      none|no prompt is streamed|k/o||
        <cr>||||
        !
      !
      all|every prompt is streamed|k/o||
        <cr>||||
        !
      !
      flash|from flash|k/o||
        <cr>||||
        !
      !
      http|by http|k/o||
        <cr>||||
        !
      !
      tftp|by tftp|k/o||
        <cr>||||
        !
      !
    !
    memory|prompt memory|k||
      id|kilobytes|o||
        <cr>||||
        !
      !
    !
  !
  record|recording|k||
    memory|recording memory|k||
      system|for the whole system|k||
        id|kilobytes|o||
          <cr>||||
          !
        !
      !
      session|for one session|k||
        id|kilobytes|o||
          <cr>||||
          !
        !
      !
    !
    jitter|jitter buffer of a recording|k||
      tftp:|recordings to tftp|k||
        id|milliseconds|o||
          <cr>||||
          !
        !
      !
      http:|recordings to http|k||
        id|milliseconds|o||
          <cr>||||
          !
        !
      !
    !
    cpu|cpu limit of recording|k||
      flash|recordings to flash|k||
        <1-100>|per cent|o||
          <cr>||||
          !
        !
      !
    !
  !
!
call|call settings|k||
  fallback|call fallback|k||
    probe-timeout|probe timeout|k||
      id|seconds|o||
        <cr>||||
        !
      !
    !
    wait-timeout|wait timeout|k||
      id|seconds|o||
        <cr>||||
        !
      !
    !
    threshold|fallback thresholds|k||
      icpif|calculated planning impairment factor|k||
        id|icpif value|o||
          <cr>||||
          !
        !
      !
      delay|delay threshold|k||
        id|milliseconds|o||
          loss|packet loss|k||
            id|per cent|||
              <cr>||||
              !
            !
          !
        !
      !
    !
    jitter-probe|jitter probes|k||
      precedence|precedence of the probe|k||
        id|precedence|o||
          <cr>||||
          !
        !
      !
      num-packets|packets in a probe|k||
        <2-50>|packets|o||
          <cr>||||
          !
        !
      !
      priority-queue|use the priority queue|k||
        <cr>||||
        !
      !
      dscp|dscp of the probe|k||
        id|dscp value|o||
          <cr>||||
          !
        !
      !
    !
    cache-size|cache size|k||
      <1-4096>|entries|o||
        <cr>||||
        !
      !
    !
    cache-timeout|cache timeout|k||
      id|seconds|o||
        <cr>||||
        !
      !
    !
    key-chain|md5 key chain|k||
      <cr>||||
      !
      word|key chain name|o||
        <cr>||||
        !
      !
    !
    reject-cause-code|cause code of a rejected call|k||
      <1-127>|cause code|o||
        <cr>||||
        !
      !
    !
    instantaneous-value-weight|weight of the newest value|k||
      id|per cent|o||
        <cr>||||
        !
      !
    !
    expect-factor|expected impairment|k||
      id|expect factor|o||
        <cr>||||
        !
      !
    !
    monitor|monitor the destinations without fallback|k||
      <cr>||||
      !
    !
    icmp-ping|icmp ping probes|k||
      <cr>||||
      !
      codec|codec of the probe|k||
        &codecfile.cfm|codec|o||
          <cr>||||
          !
          size|probe size|k||
            id|bytes|||
              <cr>||||
              !
              count|probes|k||
                id|probes|||
                  <cr>||||
                  !
                  interval|interval between probes|k||
                    id|seconds|||
                      <cr>||||
                      !
                      loss|loss threshold|k||
                        id|per cent|||
                          <cr>||||
                          !
                          timeout|probe timeout|k||
                            id|milliseconds|||
                              <cr>||||
                              !
                            !
                          !
                        !
                      !
                    !
                  !
                !
              !
            !
          !
        !
      !
    !
    active|fallback on|k||
      <cr>||||
      !
      icpif|by icpif|k/o||
        <cr>||||
        !
      !
      delay|by delay and loss|k/o||
        <cr>||||
        !
      !
    !
    map|fallback map|k||
      <1-16>|map tag|k||
        target|target of the map|k||
          a.b.c.d|target address|k||
            <cr>||||
            !
          !
        !
        address-list|addresses of the map|k||
          line|line|lb/le/wa||
            <cr>||||
            !
          !
        !
        subnet|subnet of the map|k||
          a.b.c.d|network|k||
            a.b.c.d|mask|||
              <cr>||||
              !
            !
          !
        !
      !
    !
  !
  treatment|call treatment|k||
    on|call treatment on|k||
      <cr>||||
      !
    !
    action|treatment of a call|k||
      reject|reject the call|k/o||
        <cr>||||
        !
      !
      hangup|hang up|k/o||
        <cr>||||
        !
      !
      playmsg|play a message|k/o||
        word|message url|||
          <cr>||||
          !
        !
      !
    !
    cause-code|cause code of a treated call|k||
      busy|user busy|k/o||
        <cr>||||
        !
      !
      no-qos|no quality of service|k/o||
        <cr>||||
        !
      !
      no-resource|no resource|k/o||
        <cr>||||
        !
      !
    !
    isdn-reject|cause code of a rejected isdn call|k||
      <34-47>|cause code|o||
        <cr>||||
        !
      !
    !
  !
  rsvp-sync|rsvp synchronisation|k||
    <cr>||||
    !
    resv-timer|reservation timer|k||
      <1-60>|seconds|o||
        <cr>||||
        !
      !
    !
  !
  threshold|call thresholds|k||
    poll-interval|poll intervals|k||
      cpu-avg|average cpu|k||
        <10-300>|seconds|o||
          <cr>||||
          !
        !
      !
      memory|memory for prompts|k||
        <1-60>|seconds|o||
          <cr>||||
          !
        !
      !
    !
    global|global thresholds|k||
      cpu-5sec|cpu over five seconds|k||
        low|low water mark|k||
          id|value|o||
            high|high water mark|k||
              id|value|||
                <cr>||||
                !
                busyout|busy out the ports|k||
                  <cr>||||
                  !
                !
                treatment|treat the calls|k||
                  <cr>||||
                  !
                !
              !
            !
          !
        !
      !
      cpu-avg|average cpu|k||
        low|low water mark|k||
          id|value|o||
            high|high water mark|k||
              id|value|||
                <cr>||||
                !
                busyout|busy out the ports|k||
                  <cr>||||
                  !
                !
                treatment|treat the calls|k||
                  <cr>||||
                  !
                !
              !
            !
          !
        !
      !
      io-mem|i/o memory|k||
        low|low water mark|k||
          id|value|o||
            high|high water mark|k||
              id|value|||
                <cr>||||
                !
                busyout|busy out the ports|k||
                  <cr>||||
                  !
                !
                treatment|treat the calls|k||
                  <cr>||||
                  !
                !
              !
            !
          !
        !
      !
      proc-mem|processor memory|k||
        low|low water mark|k||
          id|value|o||
            high|high water mark|k||
              id|value|||
                <cr>||||
                !
                busyout|busy out the ports|k||
                  <cr>||||
                  !
                !
                treatment|treat the calls|k||
                  <cr>||||
                  !
                !
              !
            !
          !
        !
      !
      total-calls|all calls|k||
        low|low water mark|k||
          id|value|o||
            high|high water mark|k||
              id|value|||
                <cr>||||
                !
                busyout|busy out the ports|k||
                  <cr>||||
                  !
                !
                treatment|treat the calls|k||
                  <cr>||||
                  !
                !
              !
            !
          !
        !
      !
      total-mem|all memory|k||
        low|low water mark|k||
          id|value|o||
            high|high water mark|k||
              id|value|||
                <cr>||||
                !
                busyout|busy out the ports|k||
                  <cr>||||
                  !
                !
                treatment|treat the calls|k||
                  <cr>||||
                  !
                !
              !
            !
          !
        !
      !
      voip-calls|voip calls|k||
        low|low water mark|k||
          id|value|o||
            high|high water mark|k||
              id|value|||
                <cr>||||
                !
                busyout|busy out the ports|k||
                  <cr>||||
                  !
                !
                treatment|treat the calls|k||
                  <cr>||||
                  !
                !
              !
            !
          !
        !
      !
    !
    interface|interface thresholds|k||
      &interfacefile.cfm|interface type|k||
        <number>|interface number|k||
          int-calls|calls on the interface|k||
            low|low water mark|k||
              id|value|o||
                high|high water mark|k||
                  id|value|||
                    <cr>||||
                    !
                  !
                !
              !
            !
          !
        !
      !
    !
  !
  rscmon|resource monitor|k||
    update-timer|update timer|k||
      id|milliseconds|o||
        <cr>||||
        !
      !
    !
  !
  application|call application|k||
    voice|voice application|k||
      word|application name|k||
        line|line|lb/le/wa/o||
          <cr>||||
          !
        !
      !
    !
    alternate|application used when the dial peer names none|k||
      word|application name|o||
        <cr>||||
        !
      !
    !
    global|global application|k||
      word|application name|o||
        <cr>||||
        !
      !
    !
  !
!
call-history-mib|call history mib|k||
  retain-timer|time an entry is kept|k||
    id|minutes|o||
      <cr>||||
      !
    !
  !
  max-size|largest table|k||
    id|entries|o||
      <cr>||||
      !
    !
  !
!
telephony-service|telephony service configuration|k||
  <cr>||||@(config-telephony)# telephony_service.cfm
  !
!
stcapp|skinny telephony control application|k||
  <cr>||||
  !
  ccm-group|call manager group|k||
    id|group number|o||
      <cr>||||
      !
    !
  !
  feature|stcapp features|k||
    line|line|lb/le/wa||
      <cr>||||
      !
    !
  !
  register|register phones|k||
    line|line|lb/le/wa||
      <cr>||||
      !
    !
  !
  timer|stcapp timers|k||
    line|line|lb/le/wa||
      <cr>||||
      !
    !
  !
!
dot11|ieee 802.11 configuration|k||
  syslog|log the association events|k||
    <cr>||||
    !
  !
  pause-time|pause after a failed authentication|k||
    <1-65535>|milliseconds|o||
      <cr>||||
      !
    !
  !
  vlan-name|name of a vlan|k||
    word|vlan name|k||
      vlan|vlan of the name|k||
        <1-4094>|vlan id|o||
          <cr>||||
          !
        !
      !
    !
  !
  ssid|radio service set|k||
    word|ssid name|k||
      <cr>||||@(config-ssid)# dot11_ssid.cfm
      !
    !
  !
  band-select|band select|k||
    parameters|band select parameters|k||
      <cr>||||@(config-dot11-band-select)# dot11_band_select.cfm
      !
    !
  !
  activity-timeout|inactivity timeout of a client|k||
    line|line|lb/le/wa||
      <cr>||||
      !
    !
  !
  arp-cache|arp cache|k||
    <cr>||||
    !
    optional|optional arp caching|k||
      <cr>||||
      !
    !
  !
  holdoff-time|hold-off after a failed authentication|k||
    <1-65555>|seconds|o||
      <cr>||||
      !
    !
  !
!
bridge|bridge group|k||
  irb|integrated routing and bridging|k||
    <cr>||||
    !
  !
  <1-255>|bridge group|k||
    route|route a protocol|k||
      ip|route ip|k||
        <cr>||||
        !
      !
      ipv6|route ipv6|k||
        <cr>||||
        !
      !
    !
    bridge|bridge a protocol|k||
      ip|bridge ip|k||
        <cr>||||
        !
      !
    !
    protocol|spanning tree protocol|k||
      ieee|ieee 802.1d|k/o||
        <cr>||||
        !
      !
      vlan-bridge|vlan bridge|k/o||
        <cr>||||
        !
      !
      dec|dec spanning tree|k/o||
        <cr>||||
        !
      !
    !
    priority|bridge priority|k||
      id|priority|o||
        <cr>||||
        !
      !
    !
    aging-time|aging time|k||
      <10-1000000>|seconds|o||
        <cr>||||
        !
      !
    !
  !
!
