"""Type stubs of the qrmkit package's high-level layer."""

import os
from typing import Any, Dict, Iterable, Iterator, List, Optional, Tuple, Type, Union

from ._errors import (
    ERRORS_BY_CODE as ERRORS_BY_CODE,
    BadArchiveError as BadArchiveError,
    DocumentError as DocumentError,
    EmptyInputError as EmptyInputError,
    Error as Error,
    EvaluationFailedError as EvaluationFailedError,
    EvaluationTimeoutError as EvaluationTimeoutError,
    FileMissingError as FileMissingError,
    InputError as InputError,
    InternalError as InternalError,
    NoBundleError as NoBundleError,
    NotACatalogError as NotACatalogError,
    NotAFileError as NotAFileError,
    NotAnInventoryError as NotAnInventoryError,
    NotComparableError as NotComparableError,
    NotReadableError as NotReadableError,
    NotXMLError as NotXMLError,
    OutOfMemoryError as OutOfMemoryError,
    ProcessDiedError as ProcessDiedError,
    ProcessError as ProcessError,
    ProcessFailedError as ProcessFailedError,
    StaleObjectError as StaleObjectError,
    TooLargeError as TooLargeError,
    UnknownOSCodeError as UnknownOSCodeError,
    UsageError as UsageError,
)

PathArg = Union[str, bytes, os.PathLike[str], os.PathLike[bytes]]

library_version: str

class Record:
    def __init__(self, data: Dict[str, Any]) -> None: ...
    def __getattr__(self, name: str) -> Any: ...
    def to_dict(self) -> Dict[str, Any]: ...
    def __eq__(self, other: object) -> bool: ...

class Update(Record):
    device: str
    application: str
    installed_version: str
    available_version: str
    status: str
    component_type: str
    criticality: str
    category: Dict[str, str]
    name: str
    package_id: str
    path: str
    location: str
    release_id: str

class UpdateList(List[Update]):
    document: Dict[str, Any]

class Explanation(Record):
    device: str
    application: str
    installed_version: str
    outcome: str
    reason: str

class ExplanationList(List[Explanation]):
    document: Dict[str, Any]

class Bundle(Record):
    id: str
    type: str
    name: str
    path: str
    vendor_version: str
    release_id: str
    date_time: int
    systems: List[str]
    operating_systems: List[str]
    packages: List[Dict[str, str]]

class Component(Record):
    package_id: str
    name: str
    vendor_version: str
    release_id: str
    component_type: str
    criticality: str
    category: Dict[str, str]
    path: str
    location: str
    date_time: int
    systems: List[str]
    operating_systems: List[str]
    devices: List[Dict[str, Any]]

class Category(Record):
    text: str
    codes: List[str]
    acronyms: List[str]
    listed: List[str]

class Collector(Record):
    os_code: str
    path: str
    location: str
    vendor_version: str
    release_id: str

class Catalog(Record):
    catalog: str
    base_location: str
    release_id: str
    version: str
    date_time: int
    bundles: Tuple[Bundle, ...]
    components: Tuple[Component, ...]
    categories: Tuple[Category, ...]
    acronyms: Dict[str, str]
    inventory_collectors: Tuple[Collector, ...]

class System(Record):
    system_id: str
    id_type: str
    display: str
    service_tag: str

class OperatingSystem(Record):
    code: str
    vendor: str
    architecture: str
    major_version: str
    minor_version: str
    display: str

class Application(Record):
    type: str
    version: str
    display: str

class Device(Record):
    display: str
    component_id: int
    pci: Dict[str, Any]
    applications: Tuple[Application, ...]

class Inventory(Record):
    inventory: str
    system_id: Optional[str]
    language: str
    inventory_schema_version: str
    time_stamp: int
    systems: Tuple[System, ...]
    operating_systems: Tuple[OperatingSystem, ...]
    devices: Tuple[Device, ...]

class Fleet(Iterator[Dict[str, Any]]):
    def __iter__(self) -> Fleet: ...
    def __next__(self) -> Dict[str, Any]: ...
    def close(self) -> None: ...
    def __enter__(self) -> Fleet: ...
    def __exit__(self, *exc: Any) -> None: ...

def updates(catalog: PathArg, inventory: PathArg, bundle_type: str = ...) -> UpdateList: ...
def explain(catalog: PathArg, inventory: PathArg, bundle_type: str = ...) -> ExplanationList: ...
def read_catalog(path: PathArg) -> Catalog: ...
def read_inventory(path: PathArg) -> Inventory: ...
def compare_version(first: str, second: str) -> int: ...
def fleet(
    catalog: PathArg,
    inventories: Union[PathArg, Iterable[PathArg]],
    jobs: Optional[int] = ...,
    *,
    bundle_type: str = ...,
    timeout: Optional[float] = ...,
) -> Fleet: ...
