"""The build backend of `pip install .`: builds vtyconf._core with CMake, then a wheel.

The library is linked into the module statically, and the grammar (resources/)
goes into the package, where the module finds it (vtyconf/__init__.py). Only
the standard library and CMake are used, so no package index is needed.
"""
import base64
import hashlib
import os
import pathlib
import subprocess
import sys
import tarfile
import io
import sysconfig
import tempfile
import zipfile

ROOT = pathlib.Path(__file__).resolve().parent.parent
NAME, VERSION = "vtyconf", "0.1.0"


def _tag():
    python = f"cp{sys.version_info.major}{sys.version_info.minor}"
    platform = sysconfig.get_platform().replace("-", "_").replace(".", "_")
    return f"{python}-{python}-{platform}"


def _build_module(work):
    build = pathlib.Path(work) / "cmake"
    subprocess.run(["cmake", "-S", str(ROOT), "-B", str(build), "-DCMAKE_BUILD_TYPE=Release",
                    "-DBUILD_SHARED_LIBS=OFF", "-DVTYCONF_BUILD_TESTS=OFF", "-DVTYCONF_BUILD_CLI=OFF",
                    "-DVTYCONF_INSTALL=OFF", "-DVTYCONF_BUILD_PYTHON=ON",
                    f"-DPython3_EXECUTABLE={sys.executable}"], check=True, stdout=sys.stderr)
    jobs = str(os.cpu_count() or 1)
    subprocess.run(["cmake", "--build", str(build), "--target", "vtyconf_python", "-j", jobs],
                   check=True, stdout=sys.stderr)
    return build / "python" / NAME


def _files(package):
    """(name in the wheel, path) of every file of the package."""
    for path in sorted(package.rglob("*")):
        if path.is_file() and "__pycache__" not in path.parts:
            yield f"{NAME}/{path.relative_to(package).as_posix()}", path
    for path in sorted((ROOT / "resources").rglob("*")):
        if path.is_file():
            yield f"{NAME}/resources/{path.relative_to(ROOT / 'resources').as_posix()}", path


def _metadata():
    return (f"Metadata-Version: 2.1\nName: {NAME}\nVersion: {VERSION}\n"
            "Summary: Reads Cisco IOS configurations the way the device does\n"
            "Requires-Python: >=3.9\nProvides-Extra: fleet\n"
            "Requires-Dist: dask; extra == \"fleet\"\nRequires-Dist: distributed; extra == \"fleet\"\n")


def _record_line(name, data):
    digest = base64.urlsafe_b64encode(hashlib.sha256(data).digest()).rstrip(b"=").decode()
    return f"{name},sha256={digest},{len(data)}"


def build_wheel(wheel_directory, config_settings=None, metadata_directory=None):
    tag = _tag()
    wheel_name = f"{NAME}-{VERSION}-{tag}.whl"
    info = f"{NAME}-{VERSION}.dist-info"
    with tempfile.TemporaryDirectory(prefix="vtyconf-wheel-") as work:
        package = _build_module(work)
        records = []
        with zipfile.ZipFile(pathlib.Path(wheel_directory) / wheel_name, "w", zipfile.ZIP_DEFLATED) as wheel:
            def add(name, data):
                wheel.writestr(name, data)
                records.append(_record_line(name, data))
            for name, path in _files(package):
                add(name, path.read_bytes())
            add(f"{info}/METADATA", _metadata().encode())
            add(f"{info}/WHEEL", (f"Wheel-Version: 1.0\nGenerator: {NAME} pip_backend\n"
                                  f"Root-Is-Purelib: false\nTag: {tag}\n").encode())
            records.append(f"{info}/RECORD,,")
            wheel.writestr(f"{info}/RECORD", "\n".join(records) + "\n")
    return wheel_name


def build_sdist(sdist_directory, config_settings=None):
    base = f"{NAME}-{VERSION}"
    archive = pathlib.Path(sdist_directory) / f"{base}.tar.gz"
    listed = subprocess.run(["git", "ls-files"], cwd=ROOT, capture_output=True, text=True, check=True)
    with tarfile.open(archive, "w:gz") as tar:
        for name in listed.stdout.splitlines():
            tar.add(ROOT / name, arcname=f"{base}/{name}", recursive=False)
        info = tarfile.TarInfo(f"{base}/PKG-INFO")
        data = _metadata().encode()
        info.size = len(data)
        tar.addfile(info, io.BytesIO(data))
    return archive.name


def get_requires_for_build_wheel(config_settings=None):
    return []


def get_requires_for_build_sdist(config_settings=None):
    return []
