"""Type stubs of qrmkit.dask."""

from typing import Any, Dict, Iterable, List, Optional, Union

from . import PathArg

def evaluate_shard(catalog: str, inventories: List[str], bundle_type: str = ...) -> List[Dict[str, Any]]: ...
def fleet(
    client: Any,
    catalog: PathArg,
    inventories: Union[PathArg, Iterable[PathArg]],
    bundle_type: str = ...,
    shards: Optional[int] = ...,
) -> List[Dict[str, Any]]: ...
