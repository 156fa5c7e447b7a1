"""Failures raise qrmkit.Error subclasses with the tool's codes and messages."""

import re

import pytest

import qrmkit
from conftest import SOURCE, run_tool


def tool_error(*args):
    document, status = run_tool(*args)
    assert status != 0
    return document["error"]


def expect_same_error(cls, catalog, inventory, bundle_type="auto"):
    expected = tool_error("updates", "--json", "--catalog", str(catalog), "--inventory", str(inventory),
                          "--bundle-type", bundle_type)
    with pytest.raises(cls) as raised:
        qrmkit.updates(catalog, inventory, bundle_type)
    error = raised.value
    assert isinstance(error, qrmkit.Error)
    assert error.to_dict() == expected
    assert error.code == expected["code"] and str(error) == expected["message"]
    return error


def test_a_missing_file_raises_file_missing(tool, examples, tmp_path):
    error = expect_same_error(qrmkit.FileMissingError, tmp_path / "none.xml", examples / "inventory.xml")
    assert isinstance(error, FileNotFoundError)
    assert error.file == str(tmp_path / "none.xml")


def test_a_directory_raises_not_a_file(tool, examples, tmp_path):
    expect_same_error(qrmkit.NotAFileError, tmp_path, examples / "inventory.xml")


def test_a_document_that_is_not_xml_raises_not_xml(tool, examples, tmp_path):
    bad = tmp_path / "bad.xml"
    bad.write_text("<Manifest><SoftwareComponent></Manifest>")
    expect_same_error(qrmkit.NotXMLError, bad, examples / "inventory.xml")


def test_swapped_documents_raise_not_a_catalog(tool, examples):
    expect_same_error(qrmkit.NotACatalogError, examples / "inventory.xml", examples / "inventory.xml")


def test_a_catalog_as_inventory_raises_not_an_inventory(tool, examples):
    expect_same_error(qrmkit.NotAnInventoryError, examples / "catalog.xml", examples / "catalog.xml")


def test_corrupt_compressed_data_raises_bad_archive(tool, examples, tmp_path):
    bad = tmp_path / "catalog.xml.gz"
    bad.write_bytes(b"\x1f\x8b\x08\x00" + b"\x00" * 20)
    expect_same_error(qrmkit.BadArchiveError, bad, examples / "inventory.xml")


def test_an_unknown_bundle_type_raises_usage_which_is_a_value_error(examples):
    with pytest.raises(qrmkit.UsageError) as raised:
        qrmkit.updates(examples / "catalog.xml", examples / "inventory.xml", "BTXX")
    assert isinstance(raised.value, ValueError)
    assert raised.value.code == "usage"


def test_standard_input_named_twice_raises_usage(examples):
    with pytest.raises(qrmkit.UsageError):
        qrmkit.updates("-", "-")


def test_read_functions_raise_the_same_errors(tool, examples, tmp_path):
    with pytest.raises(qrmkit.FileMissingError):
        qrmkit.read_catalog(tmp_path / "none.xml")
    with pytest.raises(qrmkit.NotAnInventoryError):
        qrmkit.read_inventory(examples / "catalog.xml")
    with pytest.raises(qrmkit.NotACatalogError):
        qrmkit.read_catalog(examples / "inventory.xml")


def test_every_code_the_tool_documents_has_its_class():
    guide = (SOURCE / "docs" / "tool.md").read_text()
    table = guide[guide.index("| Code | Cause |"):guide.index("## Exit status")]
    rows = table.splitlines()[2:]
    codes = {code for row in rows if row.startswith("|")
             for code in re.findall(r"`([a-z]+(?:-[a-z]+)*)`", row.split("|")[1])}
    assert "file-missing" in codes and "no-bundle" in codes
    for code in codes:
        cls = qrmkit.ERRORS_BY_CODE[code]
        assert issubclass(cls, qrmkit.Error) and cls.code == code


def test_an_unknown_code_still_gives_an_error():
    from qrmkit._errors import error_from
    error = error_from({"code": "something-new", "message": "m", "file": None})
    assert type(error) is qrmkit.Error and error.code == "something-new"
