"""The examples of docs/python.md run as they are written."""
import os
import subprocess
import sys

import pytest

from conftest import ROOT

EXAMPLES = sorted((ROOT / "python" / "examples").glob("*.py"))


@pytest.mark.parametrize("example", EXAMPLES, ids=[e.stem for e in EXAMPLES])
def test_example_runs(example, request):
    args = [sys.executable, str(example)]
    if example.stem.startswith("fleet"):
        pytest.importorskip("dask.bag", reason="python3-dask is not installed")
        args.append(request.getfixturevalue("client").scheduler.address)
    done = subprocess.run(args, cwd=ROOT, capture_output=True, text=True, timeout=120, env=os.environ)
    assert done.returncode == 0, done.stderr
    assert done.stdout
