"""Fleets beyond one machine: :func:`fleet` spreads the inventories over the
workers of a Dask distributed cluster.

Each task reads the catalog once and evaluates its shard of the
inventories exactly as :func:`qrmkit.fleet` does (each inventory in a
process of its own), so the result is the same list of dicts, in input
order, that ``qrmkit.fleet()`` and ``qrmkit fleet --format jsonl`` give. The
catalog and the inventories must be at the same paths on every worker
(shared storage).

    >>> from distributed import Client
    >>> import qrmkit.dask
    >>> client = Client("scheduler-host:8786")
    >>> results = qrmkit.dask.fleet(client, "/shared/catalog.xml", ["/shared/fleet/"])
"""

from __future__ import annotations

import os
from typing import Any, Dict, Iterable, List, Optional, Union

import qrmkit
from qrmkit import PathArg, UsageError, _path, _qrmkit

__all__ = ["fleet", "evaluate_shard"]


def evaluate_shard(catalog: str, inventories: List[str], bundle_type: str = "auto") -> List[Dict[str, Any]]:
    """One task's work: the catalog read once, each inventory of the shard
    evaluated in a process of its own, one at a time (the cluster's workers
    are the parallelism), the results in the shard's order."""
    with qrmkit.fleet(catalog, inventories, jobs=1, bundle_type=bundle_type) as results:
        return list(results)


def _worker_threads(client: Any) -> int:
    workers = client.scheduler_info().get("workers", {})
    return max(1, sum(int(worker.get("nthreads", 1)) for worker in workers.values()))


def fleet(
    client: Any,
    catalog: PathArg,
    inventories: Union[PathArg, Iterable[PathArg]],
    bundle_type: str = "auto",
    shards: Optional[int] = None,
) -> List[Dict[str, Any]]:
    """Evaluates the inventories against the catalog on the cluster behind
    ``client`` (a ``distributed.Client``).

    ``inventories`` is a path or an iterable of paths; a directory stands for
    its ``*.xml`` files, by name, listed here as ``qrmkit fleet`` lists them.
    They are dealt into ``shards`` tasks (None: one per worker thread of the
    cluster) the way ``qrmkit fleet --shard K/N`` deals them: the inventory
    at position p goes to shard p mod N. Returns one dict per inventory, in
    input order, exactly the lines of ``qrmkit fleet --format jsonl``; a
    faulty inventory gives its error record and never fails the run. A
    catalog that cannot be read raises its :class:`qrmkit.Error`.
    """
    if isinstance(inventories, (str, bytes, os.PathLike)):
        inventories = [inventories]
    listed = [os.fsdecode(path) for path in _qrmkit._list_fleet([_path(item, "inventory") for item in inventories])]
    if shards is not None and (not isinstance(shards, int) or shards < 1):
        raise UsageError("shards must be a positive int or None")
    catalog_path = os.fsdecode(_path(catalog, "catalog"))
    if not isinstance(bundle_type, str):
        raise TypeError("bundle_type must be a str")
    if not listed:
        # Still read the catalog once, so that an unreadable one is reported.
        evaluate_shard(catalog_path, [], bundle_type)
        return []
    count = min(shards or _worker_threads(client), len(listed))
    parts = [listed[index::count] for index in range(count)]
    futures = client.map(evaluate_shard, [catalog_path] * count, parts, [bundle_type] * count, pure=False)
    answers = client.gather(futures)
    results: List[Dict[str, Any]] = [{}] * len(listed)
    for index, answer in enumerate(answers):
        results[index::count] = answer
    return results
