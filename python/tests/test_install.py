"""cmake --install puts the package where the prefix's Python finds it; it
imports and answers from there, with the library beside it."""

import json
import os
import subprocess
import sys


from conftest import EXAMPLES, run_tool

BUILD = os.environ.get("QRMKIT_BUILD_DIR", "")


def test_the_installed_package_imports_and_answers_from_the_prefix(tool, tmp_path):
    assert BUILD, "QRMKIT_BUILD_DIR must name the build tree"
    prefix = tmp_path / "prefix"
    subprocess.run(["cmake", "--install", BUILD, "--prefix", str(prefix)], check=True,
                   stdout=subprocess.DEVNULL)
    version = f"python{sys.version_info.major}.{sys.version_info.minor}"
    site = prefix / "lib" / version / "dist-packages"
    assert (site / "qrmkit" / "__init__.py").exists()
    assert (site / "qrmkit" / "py.typed").exists()
    assert list((site / "qrmkit").glob("_qrmkit*.so"))
    script = ("import json, qrmkit; r = qrmkit.updates(%r, %r); "
              "print(json.dumps({'file': qrmkit.__file__, 'document': r.document}))"
              % (str(EXAMPLES / "catalog.xml"), str(EXAMPLES / "inventory.xml")))
    env = {key: value for key, value in os.environ.items() if key not in ("PYTHONPATH", "LD_LIBRARY_PATH")}
    env["PYTHONPATH"] = str(site)
    done = subprocess.run([sys.executable, "-c", script], stdout=subprocess.PIPE, env=env, cwd=tmp_path,
                          check=True)
    answer = json.loads(done.stdout)
    assert answer["file"].startswith(str(site))
    expected, _ = run_tool("updates", "--json", "--catalog", str(EXAMPLES / "catalog.xml"),
                           "--inventory", str(EXAMPLES / "inventory.xml"))
    assert answer["document"] == expected
    libraries = subprocess.run(["ldd", str(next((site / "qrmkit").glob("_qrmkit*.so")))],
                               stdout=subprocess.PIPE, check=True).stdout.decode()
    assert str(prefix / "lib") in libraries
