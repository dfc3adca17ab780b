"""Reads what the program files, strictly and without the program's own readers: spectra, tables, records, prints."""

import collections
import functools
import re

Spectrum = collections.namedtuple("Spectrum", "title labels ordinates")
HISTOGRAM_HEADER = "Sample Name,Date/Time,Product ID,Algorithm,Pass/Fail,Comparison,Operator Name"
HISTOGRAM_FIELDS = 7
TEMPORARY = re.compile(r"\.[A-Za-z0-9]{6}\.unfinished$")


class Damaged(Exception):
    """A file that is not whole; the text says which and why."""


def is_temporary(name):
    """Whether a name is one under which a replacement of a file begins its life."""
    return bool(TEMPORARY.search(name))


@functools.lru_cache(maxsize=4096)
def spectra_of(data):
    """The spectra of a JCAMP-DX document, in order. Every block must be whole."""
    lines = data.decode("utf-8").split("\r\n" if b"\r\n" in data else "\n")
    if lines[-1] == "":
        lines.pop()
    blocks, announced = blocks_of(lines)
    if announced is not None and announced != len(blocks):
        raise Damaged(f"{announced} blocks announced, {len(blocks)} found")
    return tuple(spectrum_of(block) for block in blocks)


def blocks_of(lines):
    """Splits a document into blocks, each without its ##END=, and returns the number that it announces."""
    if not lines or not lines[0].startswith("##TITLE="):
        raise Damaged("no title")
    if "##DATA TYPE= LINK" not in lines[:5]:
        if lines[-1].rstrip() != "##END=" or sum(line.startswith("##END=") for line in lines) != 1:
            raise Damaged("no end")
        return [lines[:-1]], None
    announced = next((int(line.split("=")[1]) for line in lines if line.startswith("##BLOCKS=")), 0)
    begin = next((index for index in range(1, len(lines)) if lines[index].startswith("##TITLE=")), len(lines))
    blocks = []
    for index in range(begin, len(lines)):
        if lines[index].startswith("##END="):
            blocks.append(lines[begin:index])
            begin = index + 1
    if begin != len(lines) or not blocks or blocks.pop():
        raise Damaged("the document does not end where its last block does")
    return blocks, announced


def spectrum_of(block):
    labels, table = {}, None
    for index, line in enumerate(block):
        if not line.startswith("##"):
            raise Damaged(f"not understood: {line[:40]}")
        name, value = line[2:].split("=", 1)
        labels[name] = value.strip()
        if name == "XYDATA":
            table = block[index + 1:]
            break
    if table is None:
        raise Damaged("no table")
    ordinates = tuple(float(number) for line in table for number in line.split(" ")[1:])
    if len(ordinates) != int(labels["NPOINTS"]):
        raise Damaged(f"{labels['NPOINTS']} points announced, {len(ordinates)} found")
    title = labels.pop("TITLE")
    return Spectrum(title, tuple(sorted(labels.items())), ordinates)


def whole_lines(data):
    """The lines of a record, and what stands behind the last line end."""
    *lines, rest = data.decode("utf-8").split("\r\n")
    return lines, rest


def check_histogram(lines):
    if lines and lines[0] != HISTOGRAM_HEADER and not HISTOGRAM_HEADER.startswith(lines[0]):
        raise Damaged("the header is missing")
    if HISTOGRAM_HEADER in lines[1:]:
        raise Damaged("a second header")


def check_print(data):
    if not data.startswith(b"%PDF-") or not data.rstrip().endswith(b"%%EOF"):
        raise Damaged("not a whole PDF")


def files_below(folder):
    """The bytes of every file, by its path below the folder."""
    return {str(path.relative_to(folder)): path.read_bytes() for path in sorted(folder.rglob("*")) if path.is_file()}
