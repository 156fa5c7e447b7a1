"""The Pythonic layer gives exactly the tool's answers."""

import gzip
import json
import os
import shutil
import subprocess
import sys
import threading

import pytest

import qrmkit
from conftest import run_tool

BUNDLE_TYPES = ["auto", "BTW32", "BTW64", "BTLX", "BTRPM", "BTDEB", "BTOSIND"]


def tool_updates(catalog, inventory, bundle_type="auto"):
    return run_tool("updates", "--json", "--catalog", str(catalog), "--inventory", str(inventory),
                    "--bundle-type", bundle_type)


def test_updates_of_the_example_are_the_tools_entries(tool, examples):
    document, status = tool_updates(examples / "catalog.xml", examples / "inventory.xml")
    assert status == 0
    result = qrmkit.updates(str(examples / "catalog.xml"), str(examples / "inventory.xml"))
    assert len(result) == 10
    assert [update.to_dict() for update in result] == document["updates"]
    assert result.document == document


def test_update_attributes_are_the_entries_members(tool, examples):
    document, _ = tool_updates(examples / "catalog.xml", examples / "inventory.xml")
    first = qrmkit.updates(examples / "catalog.xml", examples / "inventory.xml")[0]
    entry = document["updates"][0]
    assert set(entry) >= {"device", "application", "installed_version", "available_version", "status"}
    for key, value in entry.items():
        assert getattr(first, key) == value
    with pytest.raises(AttributeError):
        first.status = "older"
    with pytest.raises(AttributeError):
        first.no_such_member


def test_to_dict_is_a_copy(examples):
    update = qrmkit.updates(examples / "catalog.xml", examples / "inventory.xml")[0]
    copy = update.to_dict()
    copy["category"]["code"] = "changed"
    assert update.category["code"] != "changed"
    assert update.to_dict()["category"]["code"] != "changed"


@pytest.mark.parametrize("bundle_type", BUNDLE_TYPES)
def test_updates_of_generated_cases_are_the_tools_for_every_bundle_type(tool, generated, bundle_type):
    compared = 0
    for catalog, inventory in generated:
        document, status = tool_updates(catalog, inventory, bundle_type)
        if status == 4:
            with pytest.raises(qrmkit.NoBundleError) as raised:
                qrmkit.updates(catalog, inventory, bundle_type)
            assert raised.value.to_dict() == document["error"]
            continue
        assert status in (0, 100)
        result = qrmkit.updates(catalog, inventory, bundle_type=bundle_type)
        assert result.document == document
        compared += len(result)
    if bundle_type in ("auto", "BTW64"):
        assert compared > 0


def test_explain_is_the_tools_explain(tool, examples, generated):
    for catalog, inventory in [(examples / "catalog.xml", examples / "inventory.xml")] + generated:
        document, status = run_tool("explain", "--json", "--catalog", str(catalog), "--inventory", str(inventory))
        assert status == 0
        result = qrmkit.explain(catalog, inventory)
        assert [row.to_dict() for row in result] == document["applications"]
        assert result.document == document
        assert {row.outcome for row in result} <= set(document["summary"])


def test_each_answer_sees_only_its_own_inventory(examples, generated):
    (catalog, first), (_, second) = generated[0], generated[1]
    before = qrmkit.updates(catalog, first).document
    qrmkit.updates(catalog, second)
    qrmkit.read_inventory(second)
    assert qrmkit.updates(catalog, first).document == before
    assert qrmkit.read_inventory(first).to_dict() == qrmkit.read_inventory(first).to_dict()


def test_read_inventory_is_the_tools_inventory_document(tool, examples, generated):
    for inventory in [examples / "inventory.xml"] + [pair[1] for pair in generated]:
        document, status = run_tool("inventory", "--json", "--inventory", str(inventory))
        assert status == 0
        summary = qrmkit.read_inventory(inventory)
        assert summary.to_dict() == document
        assert isinstance(summary.devices[0], qrmkit.Device)
        assert [device.to_dict() for device in summary.devices] == document["devices"]
        assert [app.to_dict() for app in summary.devices[0].applications] == document["devices"][0]["applications"]


def test_read_catalog_lists_what_the_tools_catalog_counts(tool, examples, generated):
    for catalog in [examples / "catalog.xml"] + [pair[0] for pair in generated]:
        counts, _ = run_tool("catalog", "--json", "--catalog", str(catalog))
        categories, _ = run_tool("categories", "--json", "--catalog", str(catalog))
        summary = qrmkit.read_catalog(catalog)
        assert len(summary.bundles) == counts["bundles"]["total"]
        assert len(summary.components) == counts["components"]["total"]
        for word, count in counts["components"]["by_type"].items():
            assert sum(1 for c in summary.components if c.component_type == word) == count
        for key in ("base_location", "release_id", "version", "date_time"):
            assert getattr(summary, key) == counts[key]
        assert [c.to_dict() for c in summary.inventory_collectors] == counts["inventory_collectors"]
        assert [c.to_dict() for c in summary.categories] == categories["categories"]
        assert summary.acronyms == categories["acronyms"]


def test_read_catalog_bundles_hold_the_packages_the_updates_come_from(examples):
    summary = qrmkit.read_catalog(examples / "catalog.xml")
    result = qrmkit.updates(examples / "catalog.xml", examples / "inventory.xml")
    bundle = next(b for b in summary.bundles if b.id == result.document["bundle"]["id"])
    assert len(bundle.packages) == result.document["bundle"]["packages"]
    assert "0A6B" in bundle.systems
    listed = {(c.package_id, c.path, c.vendor_version) for c in summary.components}
    for update in result:
        assert (update.package_id, update.path, update.available_version) in listed


def test_compare_version_is_the_librarys(tool):
    cases = [("1.2.10", "1.2.9", 1), ("1.0", "1.0.0", -1), ("01.2", "1.2", 0), ("A05", "A5", 1),
             ("", "", 0), ("2.0", "10.0", -1), ("1.0a", "1.0b", -1)]
    for first, second, expected in cases:
        assert qrmkit.compare_version(first, second) == expected
        document, status = run_tool("compare", "--json", first, second)
        assert status == 0 and document["order"] == expected
    assert qrmkit.compare_version("1.0", "1.0\u00e9") == -2
    assert qrmkit.compare_version("\ud800", "1") == -2
    with pytest.raises(TypeError):
        qrmkit.compare_version(1, "1")


def test_paths_may_be_str_bytes_or_pathlike(examples):
    expected = qrmkit.updates(str(examples / "catalog.xml"), str(examples / "inventory.xml")).document
    assert qrmkit.updates(examples / "catalog.xml", examples / "inventory.xml").document == expected
    assert qrmkit.updates(os.fsencode(examples / "catalog.xml"),
                          os.fsencode(examples / "inventory.xml")).document == expected
    with pytest.raises(TypeError):
        qrmkit.updates(12, examples / "inventory.xml")


def test_compressed_input_is_read_as_the_tool_reads_it(tool, examples, tmp_path):
    packed = tmp_path / "catalog.xml.gz"
    packed.write_bytes(gzip.compress((examples / "catalog.xml").read_bytes()))
    document, status = tool_updates(packed, examples / "inventory.xml")
    assert status == 0
    result = qrmkit.updates(packed, examples / "inventory.xml")
    assert result.document == document
    assert len(result) == 10


def test_standard_input_is_read_for_a_dash(tool, examples):
    script = ("import json, qrmkit; r = qrmkit.updates('-', %r); print(json.dumps(r.document))"
              % str(examples / "inventory.xml"))
    done = subprocess.run([sys.executable, "-c", script], input=(examples / "catalog.xml").read_bytes(),
                          stdout=subprocess.PIPE, check=True)
    document, _ = run_tool("updates", "--json", "--catalog", "-", "--inventory", str(examples / "inventory.xml"),
                           stdin=(examples / "catalog.xml").read_bytes())
    assert json.loads(done.stdout) == document


def fleet_tool(catalog, inventories, *extra):
    lines, status = run_tool("fleet", "--format", "jsonl", "--catalog", str(catalog), *extra,
                             *[str(i) for i in inventories])
    return lines, status


def test_fleet_gives_the_tools_lines_in_input_order(tool, generated, tmp_path):
    catalog = generated[1][0]
    broken = tmp_path / "broken.xml"
    broken.write_text("<Inventory><System")
    inventories = [pair[1] for pair in generated] + [tmp_path / "missing.xml", broken, generated[0][1]]
    expected, status = fleet_tool(catalog, inventories)
    assert status == 3
    for jobs in (1, 2, None):
        results = list(qrmkit.fleet(catalog, inventories, jobs=jobs))
        assert results == expected
    assert [r["inventory"] for r in results] == [str(i) for i in inventories]
    assert results[4]["error"]["code"] == "file-missing"
    assert results[5]["error"]["code"] == "not-xml"


def test_fleet_expands_a_directory_as_the_tool_does(tool, generated, tmp_path):
    directory = tmp_path / "fleet"
    directory.mkdir()
    for index, (_, inventory) in enumerate(generated):
        shutil.copy(inventory, directory / f"computer-{index}.xml")
    (directory / ".hidden.xml").write_text("not read")
    (directory / "notes.txt").write_text("not read")
    expected, _ = fleet_tool(generated[0][0], [directory])
    assert len(expected) == len(generated)
    assert list(qrmkit.fleet(generated[0][0], directory)) == expected
    assert list(qrmkit.fleet(generated[0][0], [str(directory)], bundle_type="BTW64")) == \
        fleet_tool(generated[0][0], [directory], "--bundle-type", "BTW64")[0]


def test_fleet_can_be_stopped_early(generated):
    catalog = generated[0][0]
    inventories = [generated[0][1]] * 20
    with qrmkit.fleet(catalog, inventories, jobs=2) as results:
        first = next(results)
    assert first["inventory"] == str(generated[0][1])
    with pytest.raises(StopIteration):
        next(results)


def test_fleet_with_an_unreadable_catalog_raises(tmp_path, generated):
    with pytest.raises(qrmkit.FileMissingError) as raised:
        qrmkit.fleet(tmp_path / "none.xml", [generated[0][1]])
    assert raised.value.file == str(tmp_path / "none.xml")
    with pytest.raises(qrmkit.NotACatalogError):
        qrmkit.fleet(generated[0][1], [generated[0][1]])


ISOLATION_SCRIPT = """
import json, sys, threading, qrmkit
from qrmkit.lowlevel import QRMKitAPI
catalog, inventory, other, mode = sys.argv[1:]
# Another computer's inventory in this process's store: a child forked from
# here would hold two systems, and no bundle would apply.
QRMKitAPI.Instance().ParseInventory(other)
if mode in ("forked", "threaded"):
    qrmkit._qrmkit._stores_touched = lambda: False
if mode == "threaded":
    stop = threading.Event()
    threading.Thread(target=stop.wait, daemon=True).start()
try:
    document = qrmkit.updates(catalog, inventory).document
except qrmkit.Error as error:
    document = {"error": error.to_dict()}
print(json.dumps({"updates": document, "fleet": list(qrmkit.fleet(catalog, [inventory, inventory]))}))
"""


def isolation_answer(catalog, inventory, other, mode):
    """The updates and fleet answers of a process whose store holds `other`:
    "fresh" as the package runs, "forked" with the stores reported untouched
    (so a child is forked from it), "threaded" the same with another thread
    running."""
    done = subprocess.run([sys.executable, "-c", ISOLATION_SCRIPT, str(catalog), str(inventory), str(other), mode],
                          stdout=subprocess.PIPE, check=True)
    return json.loads(done.stdout)


def test_answers_stay_isolated_after_the_low_level_layer_has_read_documents(tool, examples, generated):
    catalog, inventory = generated[1]
    expected, status = tool_updates(catalog, inventory)
    assert status in (0, 100)
    fleet_expected, _ = fleet_tool(catalog, [inventory, inventory])
    isolated = isolation_answer(catalog, inventory, examples / "inventory.xml", "fresh")
    assert isolated["updates"] == expected
    assert isolated["fleet"] == fleet_expected
    # What the fresh interpreter prevents: a child forked from the touched
    # process answers with the other computer's devices in its store.
    assert isolation_answer(catalog, inventory, examples / "inventory.xml", "forked")["updates"] != expected


def test_a_process_running_other_threads_computes_answers_in_fresh_interpreters(tool, examples, generated):
    # A forked copy of a process with threads could wait forever for a lock
    # one of them held, so such a process is never forked for an answer:
    # even with its stores reported untouched, the answer comes from a fresh
    # interpreter and does not see the inventory in this process's store.
    catalog, inventory = generated[1]
    expected, _ = tool_updates(catalog, inventory)
    fleet_expected, _ = fleet_tool(catalog, [inventory, inventory])
    threaded = isolation_answer(catalog, inventory, examples / "inventory.xml", "threaded")
    assert threaded["updates"] == expected
    assert threaded["fleet"] == fleet_expected


def test_a_fleet_in_a_fresh_interpreter_takes_more_paths_than_one_command_line_argument_holds(tool, generated,
                                                                                              tmp_path):
    # The paths reach the fresh interpreter whole, however long their list:
    # here 170 KB of them, where one argument may hold 128 KiB.
    catalog, inventory = generated[1]
    folder = tmp_path
    for level in range(4):
        folder = folder / (str(level) * 200)
    folder.mkdir(parents=True)
    copy = folder / "inventory.xml"
    shutil.copyfile(inventory, copy)
    inventories = [copy] * 200
    assert sum(len(str(path)) for path in inventories) > 128 * 1024
    expected, _ = fleet_tool(catalog, inventories)
    stop = threading.Event()
    other = threading.Thread(target=stop.wait)
    other.start()  # with another thread running, the fleet runs in a fresh interpreter
    try:
        lines = list(qrmkit.fleet(catalog, inventories))
    finally:
        stop.set()
        other.join()
    assert lines == expected
