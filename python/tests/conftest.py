"""Shared fixtures: the repository, the program to compare with, the corpus."""
import json
import os
import pathlib
import subprocess

import pytest

ROOT = pathlib.Path(__file__).resolve().parents[2]
DATA = pathlib.Path(__file__).resolve().parent / "data"
CORPUS = ROOT.parent / "shared" / "corpus" / "public"


def load_table(name):
    """A case table of data/: a JSON list of rows, each with an "id"."""
    rows = json.loads((DATA / name).read_text(encoding="utf-8"))
    return pytest.mark.parametrize("case", rows, ids=[row["id"] for row in rows])


@pytest.fixture(scope="session")
def program():
    """Runs the vtyconf program of this build: program(*args) -> CompletedProcess (text)."""
    cli = os.environ.get("VTYCONF_CLI", "")
    if not cli or not os.access(cli, os.X_OK):
        pytest.skip("VTYCONF_CLI does not name the vtyconf program (run through ctest)")

    def run(*args):
        done = subprocess.run([cli, *map(str, args)], cwd=ROOT, capture_output=True, timeout=120)
        # As the program wrote it: no translation of line ends.
        done.stdout = done.stdout.decode("utf-8", "surrogateescape")
        done.stderr = done.stderr.decode("utf-8", "surrogateescape")
        return done
    return run


@pytest.fixture(scope="session")
def corpus():
    if not CORPUS.is_dir():
        pytest.skip(f"the shared corpus is absent ({CORPUS})")
    return CORPUS


@pytest.fixture(scope="session")
def client():
    """A two-worker LocalCluster for the fleet tests."""
    distributed = pytest.importorskip("distributed", reason="python3-distributed is not installed")
    cluster = distributed.LocalCluster(n_workers=2, threads_per_worker=1, processes=True,
                                       dashboard_address=None)
    with distributed.Client(cluster) as session:
        yield session
    cluster.close()
