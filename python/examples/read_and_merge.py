"""Read a configuration, find refused lines, query it, merge a change set and undo it."""
import pathlib

import vtyconf

running = vtyconf.parse_file("examples/branch-router.cfg")
print(running)                                   # Config('branch-router.cfg', ... lines, 0 refused)
for record in running.records[:3]:
    print(record.line, record.text, record.flag, record.flags)

bad = vtyconf.parse("hostname r1\n\ninterface Gi0/1\n ip adress 10.0.0.1 255.0.0.0\n", name="r1.cfg")
for refusal in bad.refused:
    print(f"{refusal.file}:{refusal.line}: {refusal.text}  {refusal.message}")
assert [r.line for r in bad.refused] == [4]

print(vtyconf.query(running, "protocols"), end="")
print(vtyconf.query(running, "acls"))            # a list

changes = pathlib.Path("examples/branch-router.changes")
assert vtyconf.check(changes, running) == []     # no line of the change set is refused
merged = vtyconf.merge(changes, running)
undo = vtyconf.rollback(changes, running, delta=True)
print(vtyconf.diff(running, merged), end="")
print(undo, end="")

for level in vtyconf.hint(running, "interface GigabitEthernet0/1"):
    print(level.prompt, [word.word for word in level.words][:4])

try:
    vtyconf.query(running, "routes")
except vtyconf.Error as error:
    print("Error:", error)
