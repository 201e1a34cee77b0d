encr|encryption|k||
  aes|aes|k/o||
    <cr>||||
    !
    id|id|||
      <cr>||||
      !
    !
  !
  3des|3des|k/o||
    <cr>||||
    !
  !
  des|des|k/o||
    <cr>||||
    !
  !
!
encryption|set encryption algorithm for protection suite|k||
  line|line|lb/le/wa||
    <cr>||||
    !
  !
!
hash|set hash algorithm for protection suite|k||
  md5|md5|k/o||
    <cr>||||
    !
  !
  sha|sha|k/o||
    <cr>||||
    !
  !
  sha256|sha256|k/o||
    <cr>||||
    !
  !
  sha384|sha384|k/o||
    <cr>||||
    !
  !
  sha512|sha512|k/o||
    <cr>||||
    !
  !
!
authentication|set authentication method for protection suite|k||
  pre-share|pre-share|k/o||
    <cr>||||
    !
  !
  rsa-sig|rsa-sig|k/o||
    <cr>||||
    !
  !
  rsa-encr|rsa-encr|k/o||
    <cr>||||
    !
  !
  ecdsa-sig|ecdsa-sig|k/o||
    <cr>||||
    !
  !
!
group|set the diffie-hellman group|k||
  id|id|o||
    <cr>||||
    !
  !
!
lifetime|set lifetime for isakmp security association|k||
  id|id|o||
    <cr>||||
    !
  !
!
key|pre-shared key for remote peer|k||
  line|line|lb/le/wa/o||
    <cr>||||
    !
  !
!
pool|set name of address pool|k||
  word|word|o||
    <cr>||||
    !
  !
!
dns|specify dns addresses|k||
  a.b.c.d|a.b.c.d|||
    <cr>||||
    !
    a.b.c.d|a.b.c.d|||
      <cr>||||
      !
    !
  !
!
domain|set default domain name to send to client|k||
  word|word|||
    <cr>||||
    !
  !
!
acl|specify split tunneling inclusion access-list number|k||
  word|word|o||
    <cr>||||
    !
  !
!
save-password|allows remote client to save xauth password|k||
  <cr>||||
  !
!
include-local-lan|enable local lan access with no split tunnel|k||
  <cr>||||
  !
!
split-dns|dns name to append for resolution|k||
  word|word|||
    <cr>||||
    !
  !
!
netmask|netmask used by the client for local connectivity|k||
  a.b.c.d|a.b.c.d|||
    <cr>||||
    !
  !
!
max-users|set maximum number of users for this group|k||
  id|id|||
    <cr>||||
    !
  !
!
max-logins|set maximum simultaneous logins for users|k||
  id|id|||
    <cr>||||
    !
  !
!
banner|specify mode config banner|k||
  line|line|lb/le/wa||
    <cr>||||
    !
  !
!
firewall|enforce group firewall policy|k||
  line|line|lb/le/wa||
    <cr>||||
    !
  !
!
backup-gateway|specify backup gateway|k||
  line|line|lb/le/wa||
    <cr>||||
    !
  !
!
pfs|the client should propose pfs|k||
  <cr>||||
  !
!
dhcp|configure dhcp parameters|k||
  line|line|lb/le/wa||
    <cr>||||
    !
  !
!
wins|specify wins addresses|k||
  line|line|lb/le/wa||
    <cr>||||
    !
  !
!
crypto|client crypto settings|k||
  aaa|aaa|k||
    line|line|lb/le/wa||
      <cr>||||
      !
    !
  !
!
