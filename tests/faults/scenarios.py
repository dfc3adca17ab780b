"""What a laboratory does while its disk fails: for each scenario a prepared data folder and the lines that are played."""

import shutil
import subprocess
from pathlib import Path

CLOCK = "2026-11-21T10:59:00"
DATA = Path("drive_c/ProgramData/Kestrova/Veritane")
DATA_FOLDER = "C:\\ProgramData\\Kestrova\\Veritane\\"
ROLLOVER = Path(__file__).parent.parent / "acceptance" / "rollover"

START = ["app duration 0", "app noise 0", 'app sample "empty"', "start"]
EXIT = ["click frmVeritane.cmdExit"]
TO_MENU = ["click frmVeritane.cmdBacktoMainMenu"]


def sample(name, boxes=("answer OK",), product="SURVEY"):
    """One sample, from the menu to the result. The last box announces the sample."""
    return ['app sample "empty"', "click frmVeritane.cmdSample", f'set frmSamp.cmbStandards "{product}"',
            f'type frmSamp.txtSampName "{name}"', 'type frmSamp.txtOperatorName "Ann"', "click frmSamp.cmdProductIDOkay",
            *boxes[:-1], 'app sample "polystyrene"', boxes[-1], "get frmVeritane.chart", "get frmVeritane.lblResult"]


# The background is announced, shown as done, and the sample is asked for.
WITH_BACKGROUND = ("answer OK",) * 3

SUPERVISOR = ["click frmVeritane.cmdSupervisor"]

COLLECT_STANDARD = [
    "tab frmVeritane.SSTab1 3", "click frmVeritane.cmdCollectStdNow", 'type frmCollectStd.txtProductID "FRESH"',
    "choose frmCollectStd.cmbmth #0", 'choose frmCollectStd.cmbAlg "Euclidean"', "click frmCollectStd.cmdScan",
    "answer OK", "answer OK", 'app sample "polystyrene"', "answer OK", "answer OK", "click frmVeritane.cmdMainMenu"]

CHANGE_METHODS = [
    "tab frmVeritane.SSTab1 2", "click frmVeritane.cmdAddMeth", f'file "{DATA_FOLDER}Standards\\Other.clm"',
    'type frmPrompts.txtSamplePrompt "Put it in."', "click frmPrompts.cmdOK", "choose frmVeritane.lstMeths #1",
    "click frmVeritane.cmdNullRegions", 'type frmNullRegion.txtNullStart "700"', 'type frmNullRegion.txtNullEnd "800"',
    "click frmNullRegion.cmdAddNullRegion", "click frmNullRegion.cmdDone", "choose frmVeritane.lstMeths #0",
    "click frmVeritane.cmdDeleteMethod"]

# Leaving the tab saves the table; then a product goes with its samples.
CHANGE_PRODUCTS = [
    "tab frmVeritane.SSTab1 3", "row frmVeritane.grid 2", 'choose frmVeritane.cmbAlgorithm "Euclidean"',
    "tab frmVeritane.SSTab1 0", "tab frmVeritane.SSTab1 3", "row frmVeritane.grid 2", "click frmVeritane.cmdDel",
    "answer Yes"]

SET_PASSWORD_AND_THRESHOLD = [
    "click frmVeritane.optPassword", 'type frmPassword.txtPassword "abc"', "key frmPassword.txtPassword Enter",
    'type frmPassword.txtPassword "abc"', "key frmPassword.txtPassword Enter", "tab frmVeritane.SSTab1 4",
    'set frmVeritane.txtThreshold "97.5"', "click frmVeritane.cmdMainMenu"]

# The lines before those whose operations fail, these, and the lines behind them.
SCENARIOS = {
    "first_start": ([], START, sample("first", WITH_BACKGROUND) + TO_MENU + EXIT),
    "sample": ([], START + sample("second", WITH_BACKGROUND) + TO_MENU + EXIT, []),
    "roll_over": (START, sample("fifty-first", WITH_BACKGROUND), TO_MENU + EXIT),
    "demonstration": (START, sample("shown", WITH_BACKGROUND), TO_MENU + EXIT),
    "standard": (START + SUPERVISOR, COLLECT_STANDARD,
                 sample("of the new product", WITH_BACKGROUND, "FRESH") + TO_MENU + EXIT),
    "tables": (START, SUPERVISOR + CHANGE_METHODS + CHANGE_PRODUCTS + ["click frmVeritane.cmdMainMenu"], EXIT),
    "settings": (START, SUPERVISOR + SET_PASSWORD_AND_THRESHOLD, EXIT),
    "print": (START + sample("printed", WITH_BACKGROUND)[:-3],
              sample("printed", WITH_BACKGROUND)[-3:] + ["click frmVeritane.cmdPrint"], TO_MENU + EXIT),
    "chart": (START + sample("printed", WITH_BACKGROUND), ["click frmVeritane.cmdPrint"], TO_MENU + EXIT),
}


def prepare(scenario, root, setup, play):
    """Lays the data folder out as it is when the scenario begins; `play` plays lines there, every one to succeed."""
    subprocess.run([setup, "--root", root], check=True, stdout=subprocess.DEVNULL)
    data, standards = root / DATA, root / DATA / "Standards"
    for file in standards.iterdir():
        if file.name != "Initial.clm":
            file.unlink()
    for name in ("Survey", "Other"):
        shutil.copy(ROLLOVER / "Survey.clm", standards / f"{name}.clm")
    # Few points everywhere: what is at stake is not how long a spectrum is.
    for name in ("SURVEY", "SECOND", "Autoalign", "back", "aspirin"):
        shutil.copy(ROLLOVER / "SURVEY standard.bsp", standards / f"{name}.bsp")
    for name in ("Meth.tbl", "Meths.tbl"):
        (data / name).unlink()
    marker = "[VERITANE_TARGETDIR]" if scenario == "first_start" else DATA_FOLDER
    write_lines(data / "Meth.tbl", [" 2 ", "SURVEY,Survey,Euclidean,", f"SECOND,Survey,Fourier,{marker}Standards\\none"])
    write_lines(data / "Meths.tbl", [" 1 ", f"{marker}Standards\\Survey.clm"])
    (data / "Samples").mkdir(exist_ok=True)
    if scenario == "first_start":
        (data / "Samples").rmdir()
        return
    write_settings(data, demonstration=scenario == "demonstration",
                   template=DATA_FOLDER + "Certificate of identity.bpt" if scenario == "print" else "")
    if scenario in ("roll_over", "tables"):
        product = "SURVEY" if scenario == "roll_over" else "SECOND"
        shutil.copy(ROLLOVER / "SURVEY 49 samples.bsp", data / "Samples" / f"{product}.bsp")
    play(START + sample("earlier", WITH_BACKGROUND) + TO_MENU + EXIT)


def write_settings(data, demonstration, template):
    """A background before every sample; the threshold at 90 percent."""
    write_lines(data / "settings.ini", ["1" if demonstration else "0", "0", "", "3", "0", "90", "1" if template else "0",
                                        template, "1", "1"])


def write_lines(path, lines):
    path.write_bytes("".join(line + "\r\n" for line in lines).encode())
