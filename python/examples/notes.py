"""Check a design note, then run it over a configuration with a user's values."""
import pathlib

import vtyconf

note = pathlib.Path("examples/notes/shut_interfaces.cmf")
assert vtyconf.check_note(note) == []            # the messages; none for a good script
tree = vtyconf.run_note(note, pathlib.Path("examples/notes/shut_interfaces.sample1"),
                        ui={"interface": ["Gi0/2"]})
print(tree, end="")                              # as `vtyconf note run` prints it
for line in tree:
    print(line.line, line.text, len(line.children))
print(vtyconf.translate_note(note).splitlines()[1])
