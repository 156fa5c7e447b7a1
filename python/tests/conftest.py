"""What the package's tests share: the built tool, the examples, generated
catalog and inventory pairs, and the tool's own JSON answers to compare with."""

import json
import os
import subprocess
import sys
from pathlib import Path

import pytest

SOURCE = Path(os.environ.get("QRMKIT_SOURCE_DIR", Path(__file__).resolve().parents[2]))
TOOL = os.environ.get("QRMKIT_TOOL", "")
EXAMPLES = SOURCE / "examples"


def run_tool(*args, stdin=None, cwd=None):
    """The tool's JSON output for the arguments (parsed) and its exit status."""
    done = subprocess.run([TOOL, *args], input=stdin, stdout=subprocess.PIPE, cwd=cwd, check=False)
    text = done.stdout.decode("utf-8")
    if "--format" in args:
        return [json.loads(line) for line in text.splitlines()], done.returncode
    return json.loads(text), done.returncode


def generate(directory, seed, components=40, devices=20, **extra):
    """A generated catalog and matching inventory in `directory`."""
    catalog = Path(directory) / f"catalog-{seed}.xml"
    inventory = Path(directory) / f"inventory-{seed}.xml"
    command = [sys.executable, str(SOURCE / "bench" / "generate.py"), "--seed", str(seed),
               "--components", str(components), "--devices", str(devices),
               "--catalog", str(catalog), "--inventory", str(inventory)]
    for key, value in extra.items():
        command += [f"--{key.replace('_', '-')}", str(value)]
    subprocess.run(command, check=True)
    return catalog, inventory


@pytest.fixture(scope="session")
def tool():
    assert TOOL and os.access(TOOL, os.X_OK), "QRMKIT_TOOL must name the built qrmkit tool"
    return TOOL


@pytest.fixture(scope="session")
def examples():
    return EXAMPLES


@pytest.fixture(scope="session")
def generated(tmp_path_factory):
    """Generated catalog and inventory pairs of several seeds and sizes."""
    directory = tmp_path_factory.mktemp("generated")
    return [generate(directory, seed, components, devices)
            for seed, components, devices in ((1, 30, 15), (2, 60, 30), (3, 120, 40), (4, 20, 60))]
