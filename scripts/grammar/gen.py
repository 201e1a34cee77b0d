#!/usr/bin/env python3
"""Writes the IOS definition files (resources/files/*.cfm) from the compact
grammar sources in this folder.

Source format, one node per line, two blanks of indentation per level:

    TOKEN [:FLAGS] [$] [@SUFFIX=FILE] [&FILE] [~TEXT] ["help"]

  :FLAGS   flag codes joined by "/" (k, o, n, lb/le/wa, ...)
  $        the command may end here (writes a <cr> child)
  @S=F     the command may end here and opens mode S with grammar F
           (the link goes on the <cr> line)
  &F       include the grammar F as this node's children
  ~TEXT    the text field (mb, ma, rp, cf); blanks written as "_"
  "help"   help text (default: the token)
  *        shorthand for :lb/le/wa $ (free text that takes the rest of the line)

  A node with $, children and the flag sn or sb writes it on its <cr> line:
  only the command that ends there is shown in its "no" form.

  :-k      this keyword does not name the command: no automatic k

  file NAME.cfm [-k|-allk]
                       starts an output file (column 0); -k leaves out the
                       automatic k on every keyword of the file, -allk every k
                       (entries of a list that are all one kind of setting)
  def NAME             starts a fragment (column 0); %NAME in a tree expands
                       it there. Lines written below %NAME are attached to
                       every leaf of the fragment.
  # ...                comment
"""
import os
import re
import shlex
import sys


class Node:
    def __init__(self, token):
        self.token = token
        self.flags = ""
        self.end = False
        self.link = ""
        self.include = ""
        self.text = ""
        self.help = ""
        self.children = []
        self.macro = None
        self.autok = False


def parse_line(text):
    parts = shlex.split(text, posix=True)
    node = Node(parts[0])
    if node.token.startswith("%"):
        node.macro = node.token[1:]
    for p in parts[1:]:
        if p.startswith(":"):
            # Flags add up, whatever their order with "*" on the line; "-k"
            # among them (":-k/o") leaves out the automatic k.
            codes = [x for x in p[1:].split("/") if x]
            if "-k" in codes:
                node.nokey = True
                codes = [x for x in codes if x != "-k"]
            node.flags = "/".join(x for x in [node.flags] + codes if x)
        elif p == "$":
            node.end = True
        elif p == "*":
            node.flags = "lb/le/wa" + ("/" + node.flags if node.flags else "")
            node.end = True
        elif p.startswith("@"):
            suffix, _, f = p[1:].partition("=")
            node.end = True
            node.link = "@%s %s" % (suffix, f)
        elif p.startswith("&"):
            node.include = p
        elif p.startswith("~"):
            node.text = p[1:].replace("_", " ")
        else:
            node.help = p
    if is_keyword(node.token) and "k" not in node.flags.split("/") and not getattr(node, "nokey", False):
        node.flags = "k" + ("/" + node.flags if node.flags else "")
        node.autok = True
    return node


BARE = {"a.b.c.d", "a.b.c.d/<1-32>", "aa:nn", "asn:nn or ip-address:nn", "oui:vpn-index", "h.h.h", "id", "word",
        "line", "+/-<metric>", "+/-<delay>", "<cr>"}


# Checked value kinds (toolkit/ValueKinds): "1-65535", "1.0-65535.65535",
# "list/1-4094", "a.b.c.d/mask", "ipv6/address", "ipv6/prefix".
VALUE_KIND = re.compile(r"^(list/)?\d+(\.\d+)?-\d+(\.\d+)?$|^a\.b\.c\.d/mask$|^ipv6/(address|prefix)$")


def is_keyword(token):
    """Literal keywords and key tables name the command: they carry k."""
    if token.startswith("%") or token.startswith("<") or token in BARE or VALUE_KIND.match(token):
        return False
    return True


def read_sources(paths):
    files, defs = {}, {}
    current = None
    stack = []
    for path in paths:
        with open(path) as f:
            for raw in f:
                line = raw.rstrip("\n")
                if not line.strip() or line.lstrip().startswith("#"):
                    continue
                indent = len(line) - len(line.lstrip(" "))
                body = line.strip()
                if indent == 0 and (body.startswith("file ") or body.startswith("def ")):
                    kind, name, *options = body.split()
                    root = Node(name)
                    (files if kind == "file" else defs).setdefault(name, root)
                    current = (files if kind == "file" else defs)[name]
                    current.options = set(options) | getattr(current, "options", set())
                    stack = [(-2, current)]
                    continue
                node = parse_line(body)
                while stack and stack[-1][0] >= indent:
                    stack.pop()
                stack[-1][1].children.append(node)
                stack.append((indent, node))
    return files, defs


def expand(children, defs):
    out = []
    for c in children:
        if c.macro is not None:
            if c.link or c.include:
                sys.exit("gen.py: %%%s carries '%s', which a fragment reference cannot take; "
                         "write the fragment out or put the link on its leaves" % (c.macro, c.link or c.include))
            frag = defs[c.macro]
            extra = c.children
            out.extend(copy_with_leaves(n, extra, defs) for n in expand(frag.children, defs))
        else:
            c.children = expand(c.children, defs)
            out.append(c)
    return out


def copy_with_leaves(node, extra, defs):
    n = Node(node.token)
    n.flags, n.end, n.link, n.include, n.text, n.help, n.autok = (node.flags, node.end, node.link, node.include,
                                                                  node.text, node.help, node.autok)
    if node.children:
        n.children = [copy_with_leaves(c, extra, defs) for c in node.children]
    elif extra:
        n.children = expand([clone(e) for e in extra], defs)
    return n


def clone(node):
    n = Node(node.token)
    n.flags, n.end, n.link, n.include, n.text, n.help, n.macro, n.autok = (
        node.flags, node.end, node.link, node.include, node.text, node.help, node.macro, node.autok)
    n.children = [clone(c) for c in node.children]
    return n


def emit(node, depth, out):
    pad = "  " * depth
    links = " ".join(x for x in (node.include,) if x)
    help_text = node.help or node.token.strip("<>")
    flags, end_flags = node.flags, ""
    shown = [f for f in ("sn", "sb") if f in flags.split("/")]
    if node.end and node.children and shown:
        # A default shown in its "no" form (sn), or a command shown in both
        # forms (sb), is the command that ends here; the longer commands below
        # it (keepalive 10, switchport mode access, mls qos map ...) are shown
        # as typed and their "no" forms are not shown, so the flag goes on the
        # <cr> alone.
        flags = "/".join(f for f in flags.split("/") if f not in shown)
        end_flags = "/".join(shown)
    out.append("%s%s|%s|%s|%s|%s" % (pad, node.token, help_text, flags, node.text, links))
    if node.end:
        out.append("%s  <cr>||%s||%s" % (pad, end_flags, node.link))
        out.append("%s  !" % pad)
    for c in node.children:
        emit(c, depth + 1, out)
    out.append("%s!" % pad)


def main():
    here = os.path.dirname(os.path.abspath(__file__))
    target = sys.argv[1] if len(sys.argv) > 1 else os.path.join(here, "..", "..", "resources", "files")
    sources = sorted(os.path.join(here, f) for f in os.listdir(here) if f.endswith(".g"))
    files, defs = read_sources(sources)
    outputs = {}
    for name, root in files.items():
        children = expand(root.children, defs)
        options = getattr(root, "options", set())
        if options & {"-k", "-allk"}:
            strip_keys(children, "-allk" in options)
        # A file may not open its own mode: a nested level of the same
        # grammar gets a copy whose mode links are plain ends.
        if relink(children, name, name.replace(".cfm", "_nested.cfm")):
            nested = [clone(c) for c in children]
            unlink(nested)
            outputs[name.replace(".cfm", "_nested.cfm")] = nested
        outputs[name] = children
    for name, children in outputs.items():
        out = []
        for c in children:
            emit(c, 0, out)
        with open(os.path.join(target, name), "w") as f:
            f.write("\n".join(out) + "\n")


def strip_keys(children, all_keys):
    for c in children:
        if c.autok or all_keys:
            c.flags = "/".join(f for f in c.flags.split("/") if f and f != "k")
        strip_keys(c.children, all_keys)


def relink(children, name, nested):
    found = False
    for c in children:
        if c.link.endswith(" " + name):
            c.link = c.link[: -len(name)] + nested
            found = True
        if relink(c.children, name, nested):
            found = True
    return found


def unlink(children):
    for c in children:
        c.link = ""
        unlink(c.children)


if __name__ == "__main__":
    main()
