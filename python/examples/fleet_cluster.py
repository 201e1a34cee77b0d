"""A design note and a reading over many configurations, on a cluster given by its scheduler.

Usage: python3 fleet_cluster.py tcp://scheduler:8786 [CONFIG-FOLDER]
"""
import sys

from vtyconf import fleet

address = sys.argv[1]
folder = sys.argv[2] if len(sys.argv) > 2 else "examples/notes"
table = fleet.parse(folder, client=address)
print(table, end="")                             # file, refused lines (or the error)
for file, refused in table.refused()[:5]:
    print(f"{file}:{refused.line}: {refused.text}")
found = fleet.note("examples/notes/interfaces_without_description.cmf", folder, client=address)
for row in found:
    if row.findings:
        print(f"== {row.file}\n{row.findings}", end="")
