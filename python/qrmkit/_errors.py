"""The exceptions of the qrmkit package: one class per error code of the
qrmkit tool's JSON errors, all under :class:`qrmkit.Error`."""

from __future__ import annotations

from typing import Any, Dict, Mapping, Optional, Type


class Error(Exception):
    """A request qrmkit could not carry out.

    ``code`` is the error code the tool's JSON errors carry ("file-missing",
    "not-a-catalog", "no-bundle", ...), ``message`` the tool's one-line
    message, and ``file`` the file at fault (None when no file is).
    """

    code: str = "error"

    def __init__(self, message: str, *, code: Optional[str] = None, file: Optional[str] = None) -> None:
        super().__init__(message)
        self.message = message
        if code is not None:
            self.code = code
        self.file = file

    def to_dict(self) -> Dict[str, Any]:
        """The error as the tool's JSON writes it: code, message, file."""
        return {"code": self.code, "message": self.message, "file": self.file}

    def __reduce__(self) -> Any:
        # Errors cross process boundaries (Dask workers) whole.
        return (_rebuild, (type(self), self.message, self.code, self.file))


def _rebuild(cls: Type["Error"], message: str, code: str, file: Optional[str]) -> "Error":
    return cls(message, code=code, file=file)


class UsageError(Error, ValueError):
    """A bad argument: an unknown bundle type, standard input named twice."""

    code = "usage"


class InputError(Error):
    """A document that cannot be read as a file."""


class FileMissingError(InputError, FileNotFoundError):
    """No such file."""

    code = "file-missing"


class NotAFileError(InputError):
    """A directory where a file was expected."""

    code = "not-a-file"


class NotReadableError(InputError, PermissionError):
    """The file cannot be opened or read."""

    code = "not-readable"


class EmptyInputError(InputError):
    """Standard input or a pipe gave nothing."""

    code = "empty-input"


class TooLargeError(InputError):
    """Read or unpacked, the document would exceed the limit."""

    code = "too-large"


class BadArchiveError(InputError):
    """Compressed data that is corrupt, or an archive without exactly one XML file."""

    code = "bad-archive"


class DocumentError(Error):
    """A document that was read but is not what was asked for."""


class NotXMLError(DocumentError):
    """The document is not well-formed XML."""

    code = "not-xml"


class NotACatalogError(DocumentError):
    """The document does not read as a catalog."""

    code = "not-a-catalog"


class NotAnInventoryError(DocumentError):
    """The document does not read as an inventory."""

    code = "not-an-inventory"


class NoBundleError(Error):
    """No bundle of the requested type (of any type, with "auto") lists the system."""

    code = "no-bundle"


class EvaluationFailedError(Error):
    """The library could not determine the applicable updates."""

    code = "evaluation-failed"


class UnknownOSCodeError(Error):
    """The catalog has no inventory collector for the operating system code."""

    code = "unknown-os-code"


class NotComparableError(Error, ValueError):
    """A version that is not ASCII text."""

    code = "not-comparable"


class ProcessError(Error):
    """The process computing an answer could not be started, died or ran too long."""


class ProcessFailedError(ProcessError):
    """No process could be started to compute the answer."""

    code = "process-failed"


class ProcessDiedError(ProcessError):
    """The process computing the answer died (a signal, running out of memory)."""

    code = "process-died"


class EvaluationTimeoutError(ProcessError):
    """The evaluation took longer than the timeout and was stopped."""

    code = "timeout"


class OutOfMemoryError(ProcessError, MemoryError):
    """The evaluation ran out of memory."""

    code = "out-of-memory"


class InternalError(Error):
    """A fault of qrmkit itself."""

    code = "internal"


class StaleObjectError(Error, ReferenceError):
    """A low-level object that referred into the library's stores was used
    after the stores were rebuilt (Reset, Parse, Initialize)."""

    code = "stale-object"


ERRORS_BY_CODE: Dict[str, Type[Error]] = {
    cls.code: cls
    for cls in (
        UsageError,
        FileMissingError,
        NotAFileError,
        NotReadableError,
        EmptyInputError,
        TooLargeError,
        BadArchiveError,
        NotXMLError,
        NotACatalogError,
        NotAnInventoryError,
        NoBundleError,
        EvaluationFailedError,
        UnknownOSCodeError,
        NotComparableError,
        ProcessFailedError,
        ProcessDiedError,
        EvaluationTimeoutError,
        OutOfMemoryError,
        InternalError,
        StaleObjectError,
    )
}


def error_from(error: Mapping[str, Any]) -> Error:
    """The exception for an error object of the tool's JSON ({"code", "message", "file"})."""
    code = str(error.get("code", "internal"))
    cls = ERRORS_BY_CODE.get(code, Error)
    return cls(str(error.get("message", "")), code=code, file=error.get("file"))
