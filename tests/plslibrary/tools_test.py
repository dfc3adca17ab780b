"""veritane-calibrate and veritane-predict through their command lines: tools_test.py PROGRAMS DATA [LAUNCHER]

With a LAUNCHER the programs are those of Windows, which it starts."""
import csv
import json
import math
import pathlib
import subprocess
import sys
import tempfile
import unittest

PROGRAMS, DATA = (pathlib.Path(argument).resolve() for argument in sys.argv[1:3])
LAUNCHER = sys.argv[3:4]
SUFFIX = ".exe" if LAUNCHER else ""
GASOLINE = DATA / "pls" / "gasoline_nir.csv"


def jcamp(title, ordinates):
    """A JCAMP-DX file of a few points from 1000 cm⁻¹ in steps of 10."""
    last = 1000 + 10 * (len(ordinates) - 1)
    lines = [f"##TITLE={title}", "##JCAMP-DX=5.01", "##DATA TYPE=INFRARED SPECTRUM", "##XUNITS=1/CM",
             "##YUNITS=ABSORBANCE", "##FIRSTX=1000", f"##LASTX={last}", f"##NPOINTS={len(ordinates)}", "##XFACTOR=1",
             "##YFACTOR=0.0001", "##XYDATA=(X++(Y..Y))"]
    lines += [f"{1000 + 10 * i} {round(y * 10000)}" for i, y in enumerate(ordinates)]
    return "\n".join(lines + ["##END="]) + "\n"


def blend(first, second):
    """Twenty points of two bands by Beer's law, with a ripple that stands for noise."""
    return [first * math.exp(-((i - 5) / 2) ** 2) + second * math.exp(-((i - 12) / 3) ** 2) +
            0.002 * math.sin(i * (1 + 7 * first)) for i in range(20)]


class Tools(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = pathlib.Path(folder.name)

    def run_tool(self, name, *arguments, status=0):
        done = subprocess.run([*LAUNCHER, PROGRAMS / (name + SUFFIX), *map(str, arguments)], cwd=self.folder, capture_output=True,
                              encoding="utf-8")
        self.assertEqual(done.returncode, status, done.stderr)
        return done

    def calibrate(self, *arguments, status=0):
        return self.run_tool("veritane-calibrate", *arguments, status=status)

    def predict(self, *arguments, status=0):
        return self.run_tool("veritane-predict", *arguments, status=status)

    def calibrate_gasoline(self, *arguments, status=0):
        return self.calibrate(GASOLINE, "--constituent", "octane", *arguments, status=status)

    def refused(self, done, *words):
        for word in words:
            self.assertIn(word, done.stderr)
        self.assertFalse((self.folder / "out.cal").exists())

    def test_predictions_and_press_equal_the_reference(self):
        with open(DATA / "pls" / "gasoline_reference_predictions.csv", encoding="utf-8") as file:
            reference = list(csv.DictReader(file))
        with open(DATA / "pls" / "gasoline_reference_press.csv", encoding="utf-8") as file:
            press = [float(row["press"]) for row in csv.DictReader(file)]
        for factors in range(1, 7):
            self.calibrate_gasoline("--rows", "1-50", "--factors", factors, "--cv", "loo", "--memo", "Gasoline",
                                    "--out", "gas.cal", "--report", "gas.json")
            predicted = list(csv.DictReader(self.predict("gas.cal", GASOLINE, "--rows", "51-60").stdout.splitlines()))
            self.assertEqual([row["sample"] for row in predicted], [row["sample"] for row in reference])
            for one, other in zip(predicted, reference):
                self.assertAlmostEqual(float(one["octane"]), float(other[f"factors_{factors}"]), delta=1e-6)
        report = json.loads((self.folder / "gas.json").read_text(encoding="utf-8"))
        found = report["constituents"][0]["byFactors"]
        self.assertEqual(found["factors"][:6], [1, 2, 3, 4, 5, 6])
        for one, other, error in zip(found["press"], press, found["rmsecv"]):
            self.assertAlmostEqual(one, other, delta=1e-6)
            self.assertAlmostEqual(error, math.sqrt(other / 50), delta=1e-6)

    def test_without_a_number_the_suggested_factors_are_taken_and_said(self):
        done = self.calibrate_gasoline("--rows", "1-50", "--cv", "10", "--out", "gas.cal", "--report", "gas.json")
        study = json.loads((self.folder / "gas.json").read_text(encoding="utf-8"))["constituents"][0]
        self.assertEqual(study["factors"], study["suggestedFactors"])
        self.assertIn(f"suggested: {study['factors']}", done.stdout)
        self.assertEqual(len(study["samples"]), 50)

    def test_documents_of_a_blend_with_two_constituents(self):
        table = ["sample,PS %,PE %"]
        for i in range(16):
            first, second = 0.1 + 0.05 * ((i * 7) % 16), 0.9 - 0.04 * i
            (self.folder / f"blend{i}.jdx").write_text(jcamp(f"Blend {i}", blend(first, second)), encoding="utf-8")
            table.append(f"blend{i},{100 * first:.6g},{100 * second:.6g}")
        (self.folder / "values.csv").write_text("\n".join(table) + "\n", encoding="utf-8")
        spectra = [f"blend{i}.jdx" for i in range(16)]
        self.calibrate(*spectra, "--reference", "values.csv", "--rows", "1-12", "--constituent", "PS %",
                       "--constituent", "PE %", "--out", "blend.cal", "--report", "blend.json", "--range", "1000-1180",
                       "--max-factors", "4")
        errors = {study["name"]: study["rmsecv"]
                  for study in json.loads((self.folder / "blend.json").read_text("utf-8"))["constituents"]}
        rows = list(csv.DictReader(self.predict("blend.cal", *spectra, "--rows", "13-16").stdout.splitlines()))
        self.assertEqual([row["sample"] for row in rows], ["blend12", "blend13", "blend14", "blend15"])
        for row, truth in zip(rows, csv.DictReader(table[:1] + table[13:])):
            for name, error in errors.items():
                self.assertLess(error, 2)
                self.assertAlmostEqual(float(row[name]), float(truth[name]), delta=4 * error)

        self.refused(self.calibrate(*spectra[:3], "--reference", "values.csv", "--constituent", "PS %", "--out",
                                    "out.cal", status=1), "values.csv, line 5", "blend3")

    def test_a_calibration_is_added_to_a_file(self):
        self.calibrate_gasoline("--rows", "1-50", "--factors", "2", "--out", "gas.cal", "--memo", "two")
        self.calibrate_gasoline("--rows", "1-50", "--factors", "3", "--add-to", "gas.cal", "--memo", "three",
                                "--scale", "yes")
        first = self.predict("gas.cal", GASOLINE, "--rows", "51").stdout
        second = self.predict("gas.cal", GASOLINE, "--rows", "51", "--calibration", "2").stdout
        self.assertNotEqual(first, second)
        self.assertIn("no calibration 3",
                      self.predict("gas.cal", GASOLINE, "--calibration", "3", status=1).stderr)
        self.assertIn("no-such.cal", self.calibrate_gasoline("--add-to", "no-such.cal", status=1).stderr)

    def test_without_its_report_no_calibration_is_added(self):
        self.calibrate_gasoline("--rows", "1-50", "--factors", "2", "--out", "gas.cal")
        before = (self.folder / "gas.cal").read_bytes()
        done = self.calibrate_gasoline("--add-to", "gas.cal", "--report", "no-such-folder/gas.json", status=1)
        self.assertIn("gas.json", done.stderr)
        self.assertEqual((self.folder / "gas.cal").read_bytes(), before)

    def test_errors_name_file_line_and_column(self):
        good = "sample,octane,900,902,904\nA,88,1,2,3\nB,87,2,3,5\nC,86,3,5,5\nD,85,4,4,7\nE,84,5,8,9\n"
        for text, words in [
                (good.replace("B,87,2,3", "B,87,2,x"), ["line 3", "column 4", '"902"', '"x"']),
                (good.replace("87", ""), ["line 3", "column 2", '"octane"']),
                (good.replace("B,87,2,3,5", "B,87,2,3"), ["line 3", "4 columns"]),
                (good.replace("904", "905"), ["line 1", "evenly"]),
                (good.replace("octane", "cetane"), ['no column "octane"']),
                (good.replace("A,", '"A,'), ["line 2", "quote"]),
                ("sample,octane,900,902\n", ["no row"]),
                ("", ["no row"])]:
            (self.folder / "data.csv").write_text(text, encoding="utf-8")
            done = self.calibrate("data.csv", "--constituent", "octane", "--out", "out.cal", status=1)
            self.refused(done, "data.csv", *words)
        self.refused(self.calibrate("none.csv", "--constituent", "octane", "--out", "out.cal", status=1), "none.csv")

    def test_a_command_line_that_makes_no_sense_ends_with_2(self):
        for arguments in [[], ["--out", "out.cal"], ["--factors", "0", "--out", "out.cal"], ["--cv", "1", "--out", "out.cal"],
                          ["--rows", "0-3", "--out", "out.cal"], ["--rows", "61", "--out", "out.cal"],
                          ["--rows", "1-4,3", "--out", "out.cal"], ["--range", "100-200", "--out", "out.cal"],
                          ["--range", "900", "--out", "out.cal"], ["--colour", "red", "--out", "out.cal"],
                          ["--out", "out.cal", "--add-to", "out.cal"], ["--memo", "€", "--out", "out.cal"]]:
            constituent = [] if arguments == ["--out", "out.cal"] else ["--constituent", "octane"]
            self.refused(self.calibrate(GASOLINE, *constituent, *arguments, status=2), "--help")
        self.predict("gas.cal", status=2)
        for tool in ("veritane-calibrate", "veritane-predict"):
            self.assertIn("usage:", self.run_tool(tool, "--help").stdout)

    def test_a_spectrum_that_does_not_match_and_a_damaged_file_are_refused(self):
        self.calibrate_gasoline("--rows", "1-50", "--factors", "2", "--out", "gas.cal")
        (self.folder / "short.csv").write_text("900,902,904\n1,2,3\n", encoding="utf-8")
        self.assertIn("number of points", self.predict("gas.cal", "short.csv", status=1).stderr)
        content = (self.folder / "gas.cal").read_bytes()
        (self.folder / "bad.cal").write_bytes(content[:1000] + b"7" + content[1001:])
        if content[1000:1001] == b"7":
            self.fail("the byte that is damaged was the same before")
        for refused in (self.predict("bad.cal", GASOLINE, status=1), self.calibrate_gasoline("--add-to", "bad.cal", status=1)):
            self.assertIn("bad.cal: calibration 1 is damaged", refused.stderr)


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
