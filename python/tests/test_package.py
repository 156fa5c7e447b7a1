"""The package as a whole: its stubs, its docstrings and its example."""

import ast
import gzip
import inspect
import os
import subprocess
import sys
from pathlib import Path

import qrmkit
import qrmkit.dask
import qrmkit.lowlevel
from conftest import SOURCE, run_tool

PACKAGE = Path(qrmkit.__file__).parent


def stub_names(path):
    tree = ast.parse(path.read_text())
    names = set()
    for node in tree.body:
        if isinstance(node, (ast.FunctionDef, ast.ClassDef)):
            names.add(node.name)
        elif isinstance(node, (ast.AnnAssign,)) and isinstance(node.target, ast.Name):
            names.add(node.target.id)
        elif isinstance(node, ast.Assign):
            names.update(target.id for target in node.targets if isinstance(target, ast.Name))
        elif isinstance(node, ast.ImportFrom):
            names.update(alias.asname or alias.name for alias in node.names)
    return names


def test_every_public_name_has_a_stub_and_a_docstring():
    assert (PACKAGE / "py.typed").exists()
    modules = ((qrmkit, "__init__.pyi"), (qrmkit.dask, "dask.pyi"), (qrmkit.lowlevel, "lowlevel.pyi"))
    for module, stub in modules:
        assert inspect.getdoc(module), f"{module.__name__} has no docstring"
        names = stub_names(PACKAGE / stub)
        for name in module.__all__:
            assert name in names, f"{name} has no stub in {stub}"
            value = getattr(module, name)
            if not (inspect.isclass(value) or callable(value)):
                continue
            assert inspect.getdoc(value), f"{module.__name__}.{name} has no docstring"
            if inspect.isclass(value) and not issubclass(value, (int, Exception)):
                for method, function in vars(value).items():
                    if not method.startswith("_") and callable(function):
                        assert inspect.getdoc(function), f"{module.__name__}.{name}.{method} has no docstring"


def test_the_stubs_and_the_example_pass_a_strict_type_check(tmp_path):
    done = subprocess.run(
        [sys.executable, "-m", "mypy", "--strict", "--no-incremental", "--cache-dir", str(tmp_path),
         str(PACKAGE / "__init__.pyi"), str(PACKAGE / "dask.pyi"), str(PACKAGE / "lowlevel.pyi"),
         str(PACKAGE / "_errors.py"),
         str(SOURCE / "examples" / "python" / "pending_updates.py")],
        env=dict(os.environ, MYPYPATH=str(PACKAGE.parent)), cwd=tmp_path,
        stdout=subprocess.PIPE, stderr=subprocess.STDOUT, check=False)
    assert done.returncode == 0, done.stdout.decode()


def test_the_example_prints_the_pending_updates_of_a_fleet(tool, generated, tmp_path):
    broken = tmp_path / "broken.xml"
    broken.write_text("not xml")
    inventories = [str(pair[1]) for pair in generated] + [str(broken)]
    catalog = str(generated[2][0])
    done = subprocess.run([sys.executable, str(SOURCE / "examples" / "python" / "pending_updates.py"),
                           catalog, *inventories], stdout=subprocess.PIPE, check=False)
    assert done.returncode == 1
    lines = done.stdout.decode().splitlines()
    expected, _ = run_tool("fleet", "--format", "jsonl", "--catalog", catalog, *inventories)
    total = 0
    for result in expected:
        if "error" in result:
            assert any(line.startswith(f"{result['inventory']}: not evaluated ({result['error']['code']})")
                       for line in lines)
            continue
        newer = sum(1 for update in result["updates"] if update["status"] == "newer")
        total += newer
        assert f"{result['inventory']}: system {result['system_id']}, {newer} pending" in lines
    assert total > 0
    assert lines[-1] == f"{len(expected)} computers, {total} pending updates, 1 not evaluated"


def test_the_worked_example_of_the_guide_runs(examples, tmp_path):
    guide = (SOURCE / "docs" / "python.md").read_text()
    start = guide.index("## A worked example")
    code = guide[guide.index("```python\n", start) + len("```python\n"):]
    code = code[:code.index("```")]
    (tmp_path / "catalog.xml").write_bytes((examples / "catalog.xml").read_bytes())
    (tmp_path / "inventory.xml").write_bytes((examples / "inventory.xml").read_bytes())
    (tmp_path / "catalog.xml.gz").write_bytes(gzip.compress((examples / "catalog.xml").read_bytes()))
    (tmp_path / "inventories").mkdir()
    (tmp_path / "inventories" / "a.xml").write_bytes((examples / "inventory.xml").read_bytes())
    done = subprocess.run([sys.executable, "-c", code], cwd=tmp_path, stdout=subprocess.PIPE,
                          stderr=subprocess.STDOUT, check=False)
    output = done.stdout.decode()
    assert done.returncode == 0, output
    assert "S740W64.00041 10 updates" in output
    assert "inventories/a.xml 7 newer" in output
    assert "file-missing missing.xml missing.xml: the file does not exist" in output


def test_the_low_level_example_of_the_guide_runs(examples, tmp_path):
    guide = (SOURCE / "docs" / "python.md").read_text()
    start = guide.index("## The low-level layer")
    code = guide[guide.index("```python\n", start) + len("```python\n"):]
    code = code[:code.index("```")]
    for name in ("catalog.xml", "inventory.xml"):
        (tmp_path / name).write_bytes((examples / name).read_bytes())
    done = subprocess.run([sys.executable, "-c", code], cwd=tmp_path, stdout=subprocess.PIPE,
                          stderr=subprocess.STDOUT, check=False)
    output = done.stdout.decode()
    assert done.returncode == 0, output
    assert "BIOS 2.3.9 -> 2.4.1" in output
    assert len(output.splitlines()) == 10
