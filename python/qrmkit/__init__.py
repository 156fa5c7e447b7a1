"""QRMKit for Python: which catalog updates apply to a computer.

The functions here give exactly the answers of the ``qrmkit`` tool: the
same code computes them, in a child process of its own for each catalog,
inventory or fleet, with the isolation of ``qrmkit fleet``. So a program
can ask about any number of computers, one after another or at once, and
never sees one inventory's devices in another's answer.

    >>> import qrmkit
    >>> for update in qrmkit.updates("catalog.xml", "inventory.xml"):
    ...     print(update.application, update.installed_version, "->", update.available_version)

Paths may be ``str``, ``bytes`` or ``os.PathLike``; ``"-"`` is standard
input; compressed documents and archives holding one XML file are unpacked,
as the tool does. Failures raise :class:`qrmkit.Error` subclasses carrying
the tool's error codes.

:mod:`qrmkit.lowlevel` is the library's own interface, in this process;
:mod:`qrmkit.dask` spreads a fleet over a Dask cluster.
"""

from __future__ import annotations

import copy
import json
import os
import subprocess
import sys
from typing import Any, Dict, Iterable, Iterator, List, Optional, Tuple, Type, Union

from . import _qrmkit
from ._errors import (
    ERRORS_BY_CODE,
    BadArchiveError,
    DocumentError,
    EmptyInputError,
    Error,
    EvaluationFailedError,
    EvaluationTimeoutError,
    FileMissingError,
    InputError,
    InternalError,
    NoBundleError,
    NotACatalogError,
    NotAFileError,
    NotAnInventoryError,
    NotComparableError,
    NotReadableError,
    NotXMLError,
    OutOfMemoryError,
    ProcessDiedError,
    ProcessError,
    ProcessFailedError,
    StaleObjectError,
    TooLargeError,
    UnknownOSCodeError,
    UsageError,
    error_from,
)

__all__ = [
    "updates",
    "explain",
    "fleet",
    "compare_version",
    "read_catalog",
    "read_inventory",
    "library_version",
    "Record",
    "Update",
    "UpdateList",
    "Explanation",
    "ExplanationList",
    "Fleet",
    "Catalog",
    "Bundle",
    "Component",
    "Category",
    "Collector",
    "Inventory",
    "System",
    "OperatingSystem",
    "Device",
    "Application",
    "Error",
    "UsageError",
    "InputError",
    "FileMissingError",
    "NotAFileError",
    "NotReadableError",
    "EmptyInputError",
    "TooLargeError",
    "BadArchiveError",
    "DocumentError",
    "NotXMLError",
    "NotACatalogError",
    "NotAnInventoryError",
    "NoBundleError",
    "EvaluationFailedError",
    "UnknownOSCodeError",
    "NotComparableError",
    "ProcessError",
    "ProcessFailedError",
    "ProcessDiedError",
    "EvaluationTimeoutError",
    "OutOfMemoryError",
    "InternalError",
    "StaleObjectError",
    "ERRORS_BY_CODE",
]

#: The version of the QRMKit library the package runs with ("1.0.0").
library_version: str = _qrmkit.library_version

PathArg = Union[str, bytes, "os.PathLike[str]", "os.PathLike[bytes]"]



# ---------------------------------------------------------------- records


class Record:
    """A read-only view of one object of the tool's JSON output.

    Its members are attributes (``update.status``); :meth:`to_dict` gives
    the object exactly as the tool's JSON has it. Two records are equal when
    their dicts are.
    """

    __slots__ = ("_data",)
    #: Members that hold lists of records of another kind.
    _nested: Dict[str, Type["Record"]] = {}

    def __init__(self, data: Dict[str, Any]) -> None:
        object.__setattr__(self, "_data", data)

    def __getattr__(self, name: str) -> Any:
        data = object.__getattribute__(self, "_data")
        if name not in data:
            raise AttributeError(f"{type(self).__name__} has no member {name!r}")
        value = data[name]
        kind = type(self)._nested.get(name)
        if kind is not None and isinstance(value, list):
            return tuple(kind(item) for item in value)
        return copy.deepcopy(value) if isinstance(value, (dict, list)) else value

    def __setattr__(self, name: str, value: Any) -> None:
        raise AttributeError(f"{type(self).__name__} is read-only")

    def __delattr__(self, name: str) -> None:
        raise AttributeError(f"{type(self).__name__} is read-only")

    def __dir__(self) -> List[str]:
        return sorted(set(object.__dir__(self)) | set(self._data))

    def to_dict(self) -> Dict[str, Any]:
        """The object as the tool's JSON has it (a copy: changing it changes nothing here)."""
        return copy.deepcopy(self._data)

    def __eq__(self, other: object) -> bool:
        if not isinstance(other, Record):
            return NotImplemented
        return type(self) is type(other) and self._data == other._data

    __hash__ = None  # type: ignore[assignment]

    def __repr__(self) -> str:
        shown = ", ".join(f"{key}={value!r}" for key, value in self._data.items() if not isinstance(value, list))
        return f"{type(self).__name__}({shown})"

    def __reduce__(self) -> Tuple[Any, ...]:
        return (type(self), (self._data,))


class Update(Record):
    """One entry of ``qrmkit updates --json``: an installed application and
    the catalog package that updates it (device, application,
    installed_version, available_version, status, component_type,
    criticality, category, name, package_id, path, location, release_id)."""

    __slots__ = ()


class UpdateList(List[Update]):
    """The updates of one computer, in the tool's order, with the whole
    ``qrmkit updates --json`` document (catalog, system, bundle, summary) as
    :attr:`document`."""

    document: Dict[str, Any]


class Explanation(Record):
    """One entry of ``qrmkit explain --json``: an installed application, its
    outcome ("update", "device-excluded", "no-bundle",
    "no-supporting-package", "not-in-bundle", "type-mismatch",
    "sub-id-mismatch") and the reason in words."""

    __slots__ = ()


class ExplanationList(List[Explanation]):
    """The explanations of one computer, with the whole ``qrmkit explain
    --json`` document as :attr:`document`."""

    document: Dict[str, Any]


class Bundle(Record):
    """A catalog bundle: id, type, name, path, vendor_version, release_id,
    date_time, systems (hexadecimal system ids), operating_systems (codes),
    packages (package_id and path of each)."""

    __slots__ = ()


class Component(Record):
    """A catalog package: package_id, name, vendor_version, release_id,
    component_type, criticality, category, path, location, date_time,
    systems, operating_systems, devices (component_id, display, pci)."""

    __slots__ = ()


class Category(Record):
    """A category text with its codes, acronyms and listed values."""

    __slots__ = ()


class Collector(Record):
    """An inventory collector: os_code, path, location, vendor_version, release_id."""

    __slots__ = ()


class Catalog(Record):
    """What a catalog holds: base_location, release_id, version, date_time,
    bundles, components, categories, acronyms (a dict) and
    inventory_collectors, in catalog order."""

    __slots__ = ()
    _nested = {"bundles": Bundle, "components": Component, "categories": Category, "inventory_collectors": Collector}


class System(Record):
    """An inventory system: system_id, id_type, display, service_tag."""

    __slots__ = ()


class OperatingSystem(Record):
    """An inventory operating system: code, vendor, architecture, versions, display."""

    __slots__ = ()


class Application(Record):
    """An installed application: type, version, display."""

    __slots__ = ()


class Device(Record):
    """An inventory device: display, component_id, pci and its applications."""

    __slots__ = ()
    _nested = {"applications": Application}


class Inventory(Record):
    """What an inventory holds: system_id, language, inventory_schema_version,
    time_stamp, systems, operating_systems and devices."""

    __slots__ = ()
    _nested = {"systems": System, "operating_systems": OperatingSystem, "devices": Device}


# ---------------------------------------------------------------- plumbing


def _path(value: PathArg, what: str) -> bytes:
    try:
        return os.fsencode(os.fspath(value))
    except TypeError:
        raise TypeError(f"{what} must be a path (str, bytes or os.PathLike), not {type(value).__name__}") from None


def _bundle_type(value: str) -> str:
    if not isinstance(value, str):
        raise TypeError(f"bundle_type must be a str, not {type(value).__name__}")
    return value


def _worker_env() -> Dict[str, str]:
    env = dict(os.environ)
    here = os.path.dirname(os.path.dirname(os.path.abspath(__file__)))
    env["PYTHONPATH"] = os.pathsep.join([here] + [p for p in env.get("PYTHONPATH", "").split(os.pathsep) if p])
    return env


def _decoded(value: Any) -> Any:
    if isinstance(value, bytes):
        return os.fsdecode(value)
    if isinstance(value, list):
        return [_decoded(item) for item in value]
    return value


def _start_worker(op: str, args: List[Any]) -> "subprocess.Popen[bytes]":
    """A fresh interpreter computing `op` (qrmkit._worker), its answer on its
    standard output. The arguments go through a pipe of their own: a fleet's
    paths can be longer than one command-line argument may be, and standard
    input stays the caller's, since a document may be read from it."""
    encoded = json.dumps(_decoded(args)).encode("ascii")
    read_end, write_end = os.pipe()
    try:
        process = subprocess.Popen(
            [sys.executable, "-m", "qrmkit._worker", op, str(read_end)],
            stdout=subprocess.PIPE,
            env=_worker_env(),
            pass_fds=(read_end,),
        )
    except BaseException:
        os.close(write_end)
        raise
    finally:
        os.close(read_end)
    try:
        with open(write_end, "wb") as arguments:
            arguments.write(encoded)
    except BrokenPipeError:
        pass  # the interpreter ended before reading them: its status says so
    return process


def _fresh_process() -> bool:
    """Whether an isolated computation must run in a fresh interpreter rather
    than in a child forked from this process: once the low-level layer has
    read documents into this process's stores (a forked child would start
    from them), and while other threads run (a forked child may start with a
    lock one of them held, and wait for it forever)."""
    return bool(_qrmkit._stores_touched() or _qrmkit._other_threads())


def _compute(op: str, *args: Any) -> Dict[str, Any]:
    """The document of one isolated computation, or its error raised."""
    if _fresh_process():
        process = _start_worker(op, list(args))
        output, _ = process.communicate()
        text = output.decode("utf-8", "replace").strip()
        if process.returncode != 0 or not text:
            raise ProcessDiedError(f"the process computing the answer ended with status {process.returncode}")
    else:
        text = getattr(_qrmkit, "_" + op)(*args)
    document = json.loads(text)
    if "error" in document:
        raise error_from(document["error"])
    return document


# ---------------------------------------------------------------- answers


def updates(catalog: PathArg, inventory: PathArg, bundle_type: str = "auto") -> UpdateList:
    """The catalog packages that update the inventory's applications.

    Exactly the entries of ``qrmkit updates --json --catalog CATALOG
    --inventory INVENTORY --bundle-type BUNDLE_TYPE``, in its order, as
    :class:`Update` records; the list's :attr:`~UpdateList.document` is the
    whole document. ``bundle_type`` is "auto" (the first type, in the order
    BTW32, BTW64, BTLX, BTRPM, BTDEB, BTOSIND, with a bundle for the system)
    or one of those types.

    Raises :class:`NoBundleError` when no bundle applies, and the input and
    document errors (:class:`FileMissingError`, :class:`NotACatalogError`,
    ...) for documents that cannot be read.
    """
    document = _compute("updates", _path(catalog, "catalog"), _path(inventory, "inventory"), _bundle_type(bundle_type))
    result = UpdateList(Update(entry) for entry in document["updates"])
    result.document = document
    return result


def explain(catalog: PathArg, inventory: PathArg, bundle_type: str = "auto") -> ExplanationList:
    """For every installed application, whether a package updates it and,
    when none does, the first reason why not: exactly the entries of
    ``qrmkit explain --json``, as :class:`Explanation` records."""
    document = _compute("explain", _path(catalog, "catalog"), _path(inventory, "inventory"), _bundle_type(bundle_type))
    result = ExplanationList(Explanation(entry) for entry in document["applications"])
    result.document = document
    return result


def read_catalog(path: PathArg) -> Catalog:
    """What a catalog holds: its bundles, components, categories and
    acronyms, and inventory collectors, as read-only records."""
    return Catalog(_compute("catalog_contents", _path(path, "catalog")))


def read_inventory(path: PathArg) -> Inventory:
    """What an inventory holds: its systems, operating systems, devices and
    their applications, as read-only records (``qrmkit inventory --json``)."""
    return Inventory(_compute("inventory_contents", _path(path, "inventory")))


def compare_version(first: str, second: str) -> int:
    """How two versions order, exactly as the library's CompareVersion: -1
    when ``first`` is older, 0 when equal, 1 when newer, -2 when either is
    not ASCII text."""
    if not isinstance(first, str) or not isinstance(second, str):
        raise TypeError("compare_version takes two str")
    return int(_qrmkit.lowlevel.QRMKitAPI.Instance().CompareVersion(first, second))


# ---------------------------------------------------------------- fleet


class Fleet(Iterator[Dict[str, Any]]):
    """The results of :func:`fleet`, one dict per inventory in input order,
    as they are ready. Closing it (or leaving a ``with`` block) stops the
    evaluation of the rest."""

    def __init__(self, catalog: bytes, inventories: List[bytes], bundle_type: str, jobs: int, timeout: float) -> None:
        self._process: Optional[subprocess.Popen] = None
        self._stream: Any = None
        if _fresh_process():
            self._process = _start_worker("fleet", [catalog, inventories, bundle_type, jobs, timeout])
        else:
            self._stream = _qrmkit._FleetStream(catalog, inventories, bundle_type, jobs, timeout)
        self._first = self._read()
        if self._first is not None and "inventory" not in self._first and "error" in self._first:
            self.close()
            raise error_from(self._first["error"])

    def _read(self) -> Optional[Dict[str, Any]]:
        if self._stream is not None:
            line = self._stream.next()
        elif self._process is not None and self._process.stdout is not None:
            raw = self._process.stdout.readline()
            line = raw.decode("utf-8", "replace").rstrip("\n") if raw else None
        else:
            line = None
        if line is None:
            return None
        return json.loads(line)

    def __iter__(self) -> "Fleet":
        return self

    def __next__(self) -> Dict[str, Any]:
        if self._first is not None:
            item, self._first = self._first, None
            return item
        item = self._read()
        if item is None:
            self.close()
            raise StopIteration
        if "inventory" not in item and "error" in item:
            self.close()
            raise error_from(item["error"])
        return item

    def close(self) -> None:
        """Stops the evaluation; the results not yet read are dropped."""
        if self._stream is not None:
            self._stream.close()
            self._stream = None
        if self._process is not None:
            if self._process.poll() is None:
                self._process.kill()
            self._process.wait()
            if self._process.stdout is not None:
                self._process.stdout.close()
            self._process = None

    def __enter__(self) -> "Fleet":
        return self

    def __exit__(self, *exc: Any) -> None:
        self.close()

    def __del__(self) -> None:
        try:
            self.close()
        except Exception:
            pass


def fleet(
    catalog: PathArg,
    inventories: Union[PathArg, Iterable[PathArg]],
    jobs: Optional[int] = None,
    *,
    bundle_type: str = "auto",
    timeout: Optional[float] = None,
) -> Fleet:
    """Evaluates many inventories against one catalog, read once.

    Yields one dict per inventory, in input order, exactly the lines of
    ``qrmkit fleet --format jsonl``: ``{"inventory": PATH, ...the updates
    document...}`` or, for an inventory that cannot be evaluated,
    ``{"inventory": PATH, "schema_version": 1, "error": {"code", "message"}}``;
    a faulty inventory never stops the others. Each inventory is evaluated
    in a process of its own, ``jobs`` at once (None: one per processor), and
    stopped after ``timeout`` seconds (None: never). ``inventories`` is a
    path or an iterable of paths; a directory stands for every ``*.xml``
    file in it, by name.

    A catalog that cannot be read raises its error here.
    """
    if isinstance(inventories, (str, bytes, os.PathLike)):
        inventories = [inventories]
    named = [_path(item, "inventory") for item in inventories]
    if jobs is not None and (not isinstance(jobs, int) or jobs < 1):
        raise UsageError("jobs must be a positive int or None")
    if timeout is not None and not (isinstance(timeout, (int, float)) and timeout > 0):
        raise UsageError("timeout must be a positive number of seconds or None")
    return Fleet(
        _path(catalog, "catalog"), named, _bundle_type(bundle_type), jobs or 0, float(timeout or 0)
    )
