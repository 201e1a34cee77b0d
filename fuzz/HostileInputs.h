// HostileInputs: generated inputs that no seed file should have to carry, fed
// to every target by the replay program ("--hostile"): lines of megabytes, deep
// nesting, NUL and 0xFF bytes, delimiters that are never closed, many levels.
// Each is built on demand; the largest is a little over one megabyte.
#pragma once

#include <string>
#include <utility>
#include <vector>

namespace fuzzsupport {

inline std::string repeat(const std::string& piece, size_t times) {
  std::string out;
  out.reserve(piece.size() * times);
  for (size_t i = 0; i < times; ++i) out += piece;
  return out;
}

// Name and text of every hostile input.
inline std::vector<std::pair<std::string, std::string>> hostileInputs() {
  const size_t mega = (size_t{1} << 20) + 17;
  std::vector<std::pair<std::string, std::string>> inputs;
  inputs.emplace_back("empty", "");
  inputs.emplace_back("one-megabyte-line", std::string(mega, 'a'));
  inputs.emplace_back("one-megabyte-of-words", repeat("interface ", mega / 10));
  inputs.emplace_back("one-megabyte-of-blanks", std::string(mega, ' '));
  inputs.emplace_back("newlines-only", std::string(100000, '\n'));
  inputs.emplace_back("nul-bytes", std::string(4096, '\0'));
  inputs.emplace_back("ff-bytes", std::string(4096, '\xff'));
  inputs.emplace_back("nul-inside-lines", std::string("interface Gi0/\0\xff\n ip address 1.1.1.1 255.0.0.0\n", 47));
  inputs.emplace_back("high-bytes", [] {
    std::string s;
    for (int i = 0; i < 256; ++i) s += static_cast<char>(i);
    return repeat(s, 16);
  }());
  inputs.emplace_back("unterminated-banner", "hostname R1\nbanner motd ^C\n" + repeat("Authorized access only\n", 5000));
  inputs.emplace_back("banner-delimiter-only", "banner motd #");
  inputs.emplace_back("unterminated-string", "$a = \"" + repeat("abc ", 10000));
  inputs.emplace_back("unterminated-char", "$a = '" + repeat("x", 10000));
  inputs.emplace_back("unterminated-comment", "/* " + repeat("comment ", 10000));
  inputs.emplace_back("line-comment-at-end", "$a = 1; // no line end");
  inputs.emplace_back("braces-200-deep", repeat("{", 200) + repeat("}", 200));
  inputs.emplace_back("braces-open", repeat("{", 5000));
  inputs.emplace_back("braces-closed", repeat("}", 5000));
  inputs.emplace_back("brackets-mixed", repeat("([{", 100) + repeat(")]}", 100));
  inputs.emplace_back("if-70-deep", repeat("if ($a) {\n", 70) + repeat("}\n", 70));
  inputs.emplace_back("if-without-body", repeat("if (", 100));
  inputs.emplace_back("else-chain", repeat("if ($a) { } else ", 200) + "{ }");
  inputs.emplace_back("indentation-200-levels", [] {
    std::string s;
    for (int i = 0; i < 200; ++i) s += std::string(static_cast<size_t>(i), ' ') + "router bgp 65000\n";
    return s;
  }());
  inputs.emplace_back("mode-changes", repeat("interface GigabitEthernet0/1\n router ospf 1\n  address-family ipv4\n", 2000));
  inputs.emplace_back("exits", repeat("exit\nend\n!\nconfigure terminal\n", 2000));
  inputs.emplace_back("help-everywhere", repeat("interface ?\nrouter bgp 1\n neighbor \t\n ?\n", 500));
  inputs.emplace_back("zero-ranges", "router ospf 0\nrouter bgp 0\ninterface Vlan0\nvlan 0\n");
  inputs.emplace_back("definition-64-levels", [] {
    std::string s;
    for (int i = 0; i < 80; ++i) s += std::string(static_cast<size_t>(i) * 2, ' ') + "w" + std::to_string(i) + "|h|k||\n";
    for (int i = 79; i >= 0; --i) s += std::string(static_cast<size_t>(i) * 2, ' ') + "!\n";
    return s;
  }());
  inputs.emplace_back("definition-unclosed", repeat("word|help|k||\n", 5000));
  inputs.emplace_back("definition-closers", repeat("!\n", 5000));
  inputs.emplace_back("definition-links", "a|h|k||@main.cfm\n!\nb|h|k||&sub.cfm\n!\n\n%%\nc|h|k||@sub.cfm\n!\n%%\n");
  inputs.emplace_back("definition-complex", "#x|h|k||\n" + repeat("y|h|ob||\n", 100));
  inputs.emplace_back("result-tags-deep", [] {
    std::string s;
    for (int i = 1; i <= 2000; ++i) s += std::to_string(i) + ":::t !#tag#a#LineNumbers#100000\n";
    return s;
  }());
  inputs.emplace_back("result-numbers-extreme",
                      "2147483647:::x !#tag##LineNumbers#2147483647\n-2147483648:::y !#tag_close##LineNumbers#-5\n"
                      "99999999999999999999:::z !#tag#q#LineNumbers#99999999999999999999\n\n\n1:::end\n");
  inputs.emplace_back("key-stream-long-line", std::string("\x50\x0c", 2) + std::string(50000, 'k') + "\r");
  inputs.emplace_back("key-stream-controls", [] {
    std::string s = std::string("\x50\x00", 2);
    for (int round = 0; round < 200; ++round) {
      for (int c = 1; c < 32; ++c) s += static_cast<char>(c);
      s += "show ip route\x12rou\x13ip\x7f\xad\xae\xb0\xb1\xb3\xb5\xb8\xb9?\t\r";
    }
    return s;
  }());
  inputs.emplace_back("key-stream-narrow", std::string("\x14\x3f", 2) + repeat("abc?\t\x01\x05\r", 100));
  inputs.emplace_back("split-markers", repeat("hostname R1\n%%\n", 50));
  return inputs;
}

}  // namespace fuzzsupport
