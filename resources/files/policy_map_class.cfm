bandwidth|bandwidth guaranteed to this class|k||
  id|id|o||
    <cr>||||
    !
  !
  percent|percent|k||
    id|id|o||
      <cr>||||
      !
    !
  !
  remaining|remaining|k||
    percent|percent|k||
      id|id|o||
        <cr>||||
        !
      !
    !
    ratio|ratio|k||
      id|id|o||
        <cr>||||
        !
      !
    !
  !
!
priority|strict scheduling priority for this class|k||
  id|id|o||
    <cr>||||
    !
    id|id|||
      <cr>||||
      !
    !
  !
  percent|percent|k||
    id|id|o||
      <cr>||||
      !
      id|id|||
        <cr>||||
        !
      !
    !
  !
  level|level|k||
    id|id|||
      <cr>||||
      !
    !
  !
!
police|police the traffic of this class|k||
  cir|committed information rate|k||
    id|bits per second|o||
      <cr>||||@(config-pmap-c-police)# policy_map_police.cfm
      !
      conform-action|action when rate is less than conform burst|k||&police_conform.cfm
      !
      bc|conform burst|k||
        id|bytes|||
          <cr>||||@(config-pmap-c-police)# policy_map_police.cfm
          !
          conform-action|action when rate is less than conform burst|k||&police_conform.cfm
          !
          be|excess burst|k||
            id|bytes|||
              <cr>||||@(config-pmap-c-police)# policy_map_police.cfm
              !
              conform-action|action when rate is less than conform burst|k||&police_conform.cfm
              !
            !
          !
          pir|peak information rate|k||
            id|bits per second|||
              <cr>||||@(config-pmap-c-police)# policy_map_police.cfm
              !
              conform-action|action when rate is less than conform burst|k||&police_conform.cfm
              !
              be|excess burst|k||
                id|bytes|||
                  <cr>||||@(config-pmap-c-police)# policy_map_police.cfm
                  !
                  conform-action|action when rate is less than conform burst|k||&police_conform.cfm
                  !
                !
              !
            !
          !
        !
      !
      pir|peak information rate|k||
        id|bits per second|||
          <cr>||||@(config-pmap-c-police)# policy_map_police.cfm
          !
          conform-action|action when rate is less than conform burst|k||&police_conform.cfm
          !
          be|excess burst|k||
            id|bytes|||
              <cr>||||@(config-pmap-c-police)# policy_map_police.cfm
              !
              conform-action|action when rate is less than conform burst|k||&police_conform.cfm
              !
            !
          !
        !
      !
    !
    percent|rate as a percentage of the interface bandwidth|k||
      id|percentage|o||
        <cr>||||@(config-pmap-c-police)# policy_map_police.cfm
        !
        conform-action|action when rate is less than conform burst|k||&police_conform.cfm
        !
        bc|conform burst|k||
          id|milliseconds|||
            ms|milliseconds|k||
              <cr>||||@(config-pmap-c-police)# policy_map_police.cfm
              !
              conform-action|action when rate is less than conform burst|k||&police_conform.cfm
              !
              be|excess burst|k||
                id|milliseconds|||
                  ms|milliseconds|k||
                    <cr>||||@(config-pmap-c-police)# policy_map_police.cfm
                    !
                    conform-action|action when rate is less than conform burst|k||&police_conform.cfm
                    !
                  !
                !
              !
              pir|peak information rate|k||
                percent|rate as a percentage of the interface bandwidth|k||
                  id|percentage|||
                    <cr>||||@(config-pmap-c-police)# policy_map_police.cfm
                    !
                    conform-action|action when rate is less than conform burst|k||&police_conform.cfm
                    !
                  !
                !
              !
            !
          !
        !
        pir|peak information rate|k||
          percent|rate as a percentage of the interface bandwidth|k||
            id|percentage|||
              <cr>||||@(config-pmap-c-police)# policy_map_police.cfm
              !
              conform-action|action when rate is less than conform burst|k||&police_conform.cfm
              !
            !
          !
        !
      !
    !
  !
  rate|rate in bits, packets or cells per second|k||
    id|rate|o||
      <cr>||||@(config-pmap-c-police)# policy_map_police.cfm
      !
      conform-action|action when rate is less than conform burst|k||&police_conform.cfm
      !
      burst|burst|k||
        id|burst size|||
          <cr>||||@(config-pmap-c-police)# policy_map_police.cfm
          !
          conform-action|action when rate is less than conform burst|k||&police_conform.cfm
          !
          bytes|bytes|k||
            <cr>||||@(config-pmap-c-police)# policy_map_police.cfm
            !
            conform-action|action when rate is less than conform burst|k||&police_conform.cfm
            !
          !
          packets|packets|k||
            <cr>||||@(config-pmap-c-police)# policy_map_police.cfm
            !
            conform-action|action when rate is less than conform burst|k||&police_conform.cfm
            !
          !
        !
      !
      peak-rate|peak rate|k||
        id|rate|||
          <cr>||||@(config-pmap-c-police)# policy_map_police.cfm
          !
          conform-action|action when rate is less than conform burst|k||&police_conform.cfm
          !
        !
      !
      bps|bits per second|k||
        <cr>||||@(config-pmap-c-police)# policy_map_police.cfm
        !
        conform-action|action when rate is less than conform burst|k||&police_conform.cfm
        !
        burst|burst|k||
          id|burst size|||
            <cr>||||@(config-pmap-c-police)# policy_map_police.cfm
            !
            conform-action|action when rate is less than conform burst|k||&police_conform.cfm
            !
            bytes|bytes|k||
              <cr>||||@(config-pmap-c-police)# policy_map_police.cfm
              !
              conform-action|action when rate is less than conform burst|k||&police_conform.cfm
              !
            !
            packets|packets|k||
              <cr>||||@(config-pmap-c-police)# policy_map_police.cfm
              !
              conform-action|action when rate is less than conform burst|k||&police_conform.cfm
              !
            !
          !
        !
        peak-rate|peak rate|k||
          id|rate|||
            <cr>||||@(config-pmap-c-police)# policy_map_police.cfm
            !
            conform-action|action when rate is less than conform burst|k||&police_conform.cfm
            !
          !
        !
      !
      pps|packets per second|k||
        <cr>||||@(config-pmap-c-police)# policy_map_police.cfm
        !
        conform-action|action when rate is less than conform burst|k||&police_conform.cfm
        !
        burst|burst|k||
          id|burst size|||
            <cr>||||@(config-pmap-c-police)# policy_map_police.cfm
            !
            conform-action|action when rate is less than conform burst|k||&police_conform.cfm
            !
            bytes|bytes|k||
              <cr>||||@(config-pmap-c-police)# policy_map_police.cfm
              !
              conform-action|action when rate is less than conform burst|k||&police_conform.cfm
              !
            !
            packets|packets|k||
              <cr>||||@(config-pmap-c-police)# policy_map_police.cfm
              !
              conform-action|action when rate is less than conform burst|k||&police_conform.cfm
              !
            !
          !
        !
        peak-rate|peak rate|k||
          id|rate|||
            <cr>||||@(config-pmap-c-police)# policy_map_police.cfm
            !
            conform-action|action when rate is less than conform burst|k||&police_conform.cfm
            !
          !
        !
      !
      cps|cells per second|k||
        <cr>||||@(config-pmap-c-police)# policy_map_police.cfm
        !
        conform-action|action when rate is less than conform burst|k||&police_conform.cfm
        !
        burst|burst|k||
          id|burst size|||
            <cr>||||@(config-pmap-c-police)# policy_map_police.cfm
            !
            conform-action|action when rate is less than conform burst|k||&police_conform.cfm
            !
            bytes|bytes|k||
              <cr>||||@(config-pmap-c-police)# policy_map_police.cfm
              !
              conform-action|action when rate is less than conform burst|k||&police_conform.cfm
              !
            !
            packets|packets|k||
              <cr>||||@(config-pmap-c-police)# policy_map_police.cfm
              !
              conform-action|action when rate is less than conform burst|k||&police_conform.cfm
              !
            !
          !
        !
        peak-rate|peak rate|k||
          id|rate|||
            <cr>||||@(config-pmap-c-police)# policy_map_police.cfm
            !
            conform-action|action when rate is less than conform burst|k||&police_conform.cfm
            !
          !
        !
      !
    !
    percent|rate as a percentage of the interface bandwidth|k||
      id|percentage|o||
        <cr>||||@(config-pmap-c-police)# policy_map_police.cfm
        !
        conform-action|action when rate is less than conform burst|k||&police_conform.cfm
        !
        burst|burst in milliseconds|k||
          id|milliseconds|||
            ms|milliseconds|k||
              <cr>||||@(config-pmap-c-police)# policy_map_police.cfm
              !
              conform-action|action when rate is less than conform burst|k||&police_conform.cfm
              !
            !
          !
        !
      !
    !
  !
  id|bits per second|o||
    <cr>||||@(config-pmap-c-police)# policy_map_police.cfm
    !
    conform-action|action when rate is less than conform burst|k||&police_conform.cfm
    !
    id|normal burst in bytes|||
      <cr>||||@(config-pmap-c-police)# policy_map_police.cfm
      !
      conform-action|action when rate is less than conform burst|k||&police_conform.cfm
      !
      id|maximum burst in bytes|||
        <cr>||||@(config-pmap-c-police)# policy_map_police.cfm
        !
        conform-action|action when rate is less than conform burst|k||&police_conform.cfm
        !
      !
    !
  !
!
shape|traffic shaping|k||
  average|average|k||
    id|id|o||
      <cr>||||
      !
      line|line|lb/le/wa||
        <cr>||||
        !
      !
    !
    percent|percent|k||
      id|id|o||
        <cr>||||
        !
        line|line|lb/le/wa||
          <cr>||||
          !
        !
      !
    !
  !
  peak|peak|k||
    line|line|lb/le/wa||
      <cr>||||
      !
    !
  !
  max-buffers|max-buffers|k||
    id|id|||
      <cr>||||
      !
    !
  !
  adaptive|adaptive|k||
    line|line|lb/le/wa||
      <cr>||||
      !
    !
  !
!
set|set qos values|k||
  dscp|dscp|k||
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
  precedence|precedence|k||
    line|line|lb/le/wa||
      <cr>||||
      !
    !
  !
  qos-group|qos-group|k||
    id|id|o||
      <cr>||||
      !
    !
  !
  discard-class|discard-class|k||
    id|id|o||
      <cr>||||
      !
    !
  !
  mpls|mpls|k||
    experimental|experimental|k||
      line|line|lb/le/wa||
        <cr>||||
        !
      !
    !
  !
  cos|cos|k||
    line|line|lb/le/wa||
      <cr>||||
      !
    !
  !
  fr-de|fr-de|k||
    <cr>||||
    !
  !
  atm-clp|atm-clp|k||
    <cr>||||
    !
  !
!
queue-limit|queue max threshold for tail drop|k||
  id|id|o||
    <cr>||||
    !
    line|line|lb/le/wa||
      <cr>||||
      !
    !
  !
!
random-detect|enable random early detection as drop policy|k||
  <cr>||||
  !
  dscp-based|dscp-based|k||
    <cr>||||
    !
  !
  prec-based|prec-based|k||
    <cr>||||
    !
  !
  discard-class-based|discard-class-based|k||
    <cr>||||
    !
  !
  dscp|dscp|k||
    line|line|lb/le/wa||
      <cr>||||
      !
    !
  !
  precedence|precedence|k||
    line|line|lb/le/wa||
      <cr>||||
      !
    !
  !
  discard-class|discard-class|k||
    line|line|lb/le/wa||
      <cr>||||
      !
    !
  !
  exponential-weighting-constant|exponential-weighting-constant|k||
    id|id|||
      <cr>||||
      !
    !
  !
  ecn|ecn|k||
    <cr>||||
    !
  !
!
fair-queue|enable flow-based fair queuing|k||
  <cr>||||
  !
  id|id|||
    <cr>||||
    !
  !
!
service-policy|configure flow next|k||
  word|word|o||
    <cr>||||
    !
  !
!
inspect|context-based access control engine|k||
  <cr>||||
  !
  word|word|||
    <cr>||||
    !
  !
!
drop|drop all packets|k||
  <cr>||||
  !
  log|log|k||
    <cr>||||
    !
  !
!
pass|pass packets|k||
  <cr>||||
  !
  log|log|k||
    <cr>||||
    !
  !
!
compression|activate compression|k||
  line|line|lb/le/wa||
    <cr>||||
    !
  !
!
estimate|estimate resources required for this class|k||
  line|line|lb/le/wa||
    <cr>||||
    !
  !
!
admit|admission control|k||
  line|line|lb/le/wa||
    <cr>||||
    !
  !
!
account|overhead accounting|k||
  <cr>||||
  !
!
trust|set trust value for the class|k||
  line|line|lb/le/wa||
    <cr>||||
    !
  !
!
log|log ipv4 and arp packets|k||
  <cr>||||
  !
!
