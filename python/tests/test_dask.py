"""qrmkit.dask.fleet on a local cluster of two worker processes gives the
lines of `qrmkit fleet --format jsonl`."""

import pickle

import distributed
import pytest

import qrmkit
import qrmkit.dask
from conftest import run_tool


@pytest.fixture(scope="module")
def client():
    cluster = distributed.LocalCluster(n_workers=2, threads_per_worker=1, processes=True, dashboard_address=None)
    with distributed.Client(cluster) as connected:
        yield connected
    cluster.close()


def test_a_fleet_over_two_workers_is_the_tools_fleet(tool, client, generated, tmp_path):
    broken = tmp_path / "broken.xml"
    broken.write_text("<Inventory><System")
    inventories = [pair[1] for pair in generated] + [broken, tmp_path / "missing.xml"] + [generated[2][1]] * 3
    catalog = generated[1][0]
    expected, status = run_tool("fleet", "--format", "jsonl", "--catalog", str(catalog),
                                *[str(i) for i in inventories])
    assert status == 3
    assert len(client.scheduler_info()["workers"]) == 2
    assert qrmkit.dask.fleet(client, catalog, inventories) == expected
    assert qrmkit.dask.fleet(client, catalog, inventories, shards=3) == expected
    assert qrmkit.dask.fleet(client, catalog, inventories, shards=50) == expected
    assert qrmkit.dask.fleet(client, catalog, inventories) == list(qrmkit.fleet(catalog, inventories))


def test_a_directory_is_listed_as_the_tool_lists_it(tool, client, generated, tmp_path):
    for index, (_, inventory) in enumerate(generated):
        (tmp_path / f"c{index}.xml").write_bytes(inventory.read_bytes())
    expected, _ = run_tool("fleet", "--format", "jsonl", "--catalog", str(generated[0][0]), str(tmp_path))
    assert qrmkit.dask.fleet(client, generated[0][0], tmp_path, bundle_type="auto") == expected


def test_an_unreadable_catalog_raises_its_error(client, generated, tmp_path):
    with pytest.raises(qrmkit.FileMissingError) as raised:
        qrmkit.dask.fleet(client, tmp_path / "none.xml", [generated[0][1]])
    assert raised.value.file == str(tmp_path / "none.xml")


def test_errors_cross_processes_whole():
    error = qrmkit.NoBundleError("m", file="f.xml")
    copy = pickle.loads(pickle.dumps(error))
    assert type(copy) is qrmkit.NoBundleError and copy.to_dict() == error.to_dict()
