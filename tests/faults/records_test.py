#!/usr/bin/env python3
"""The readers and checks that the fault tests lean on take what is whole and notice what is not."""

import tempfile
import types
import unittest
from pathlib import Path

import records
import scenarios
from archive import Archive, ArchiveCheck, Finding

DOCUMENT = (scenarios.ROLLOVER / "SURVEY 49 samples.bsp").read_bytes()
SINGLE = (scenarios.ROLLOVER / "SURVEY standard.bsp").read_bytes()


class Spectra(unittest.TestCase):
    def test_every_spectrum_of_a_document_is_read(self):
        spectra = records.spectra_of(DOCUMENT)
        self.assertEqual(len(spectra), 49)
        self.assertEqual({spectrum.title for spectrum in spectra}, {"earlier sample"})
        self.assertEqual(len(records.spectra_of(SINGLE)[0].ordinates), 76)

    def test_a_document_that_breaks_off_anywhere_is_damaged(self):
        for data in (DOCUMENT, SINGLE):
            lines = data.splitlines(keepends=True)
            # The very last line end may be missing; nothing else may.
            for kept in range(0, len(lines) - 1, 7):
                with self.assertRaises(records.Damaged, msg=f"{kept} lines"):
                    records.spectra_of(b"".join(lines[:kept]))

    def test_a_missing_point_or_block_is_noticed(self):
        with self.assertRaises(records.Damaged):
            records.spectra_of(SINGLE.replace(b" 0.016730", b"", 1))
        begin, end = DOCUMENT.index(b"##TITLE=", 10), DOCUMENT.index(b"##END=")
        with self.assertRaises(records.Damaged):
            records.spectra_of(DOCUMENT[:begin] + DOCUMENT[DOCUMENT.index(b"##TITLE=", end):])


class Records(unittest.TestCase):
    def test_what_stands_behind_the_last_line_end_is_told_apart(self):
        self.assertEqual(records.whole_lines(b"one\r\ntwo\r\nhal"), (["one", "two"], "hal"))
        self.assertEqual(records.whole_lines(b""), ([], ""))

    def test_a_histogram_file_has_one_header_at_its_top(self):
        records.check_histogram([records.HISTOGRAM_HEADER, "a,b,c,d,Pass, 100,Ann"])
        for lines in (["a,b,c,d,Pass, 100,Ann"], [records.HISTOGRAM_HEADER] * 2):
            with self.assertRaises(records.Damaged):
                records.check_histogram(lines)

    def test_half_a_print_is_damaged(self):
        records.check_print(b"%PDF-1.5 ... %%EOF\n")
        with self.assertRaises(records.Damaged):
            records.check_print(b"%PDF-1.5 ... ")

    def test_a_temporary_file_is_known_by_its_name(self):
        self.assertTrue(records.is_temporary("Samples/A.bsp.x7Gh2K.unfinished"))
        for name in ("Samples/A.bsp", "Samples/A.bsp.x7Gh2K", "Samples/A.unfinished"):
            self.assertFalse(records.is_temporary(name))


class Checks(unittest.TestCase):
    FAULT = types.SimpleNamespace(kind="full", lasts=False)

    @staticmethod
    def archive_of(files):
        with tempfile.TemporaryDirectory() as folder:
            for name, text in files.items():
                path = Path(folder) / scenarios.DATA / name
                path.parent.mkdir(parents=True, exist_ok=True)
                path.write_bytes(text.encode())
            return Archive(Path(folder))

    def test_a_damaged_histogram_file_is_a_finding(self):
        archive = self.archive_of({"Samples/SURVEY.his": f"{records.HISTOGRAM_HEADER}\r\n" * 2})
        with self.assertRaisesRegex(Finding, "Samples/SURVEY.his is damaged: a second header"):
            ArchiveCheck(archive, archive, {}, self.FAULT).check_records(archive)

    def test_a_lost_histogram_file_is_a_finding(self):
        archive = self.archive_of({})
        check = ArchiveCheck(archive, archive, {}, self.FAULT)
        check.has_next_sample = True
        with self.assertRaisesRegex(Finding, "no line of its own"):
            check.check_records(archive)


if __name__ == "__main__":
    unittest.main()
