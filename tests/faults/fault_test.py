#!/usr/bin/env python3
"""Lets the disk fail at every file operation of a scenario and checks that no record suffers.

The scenario is played once with everything well, which tells its file operations, its events and what it leaves on
disk. Then it is played again and again, each time with another operation failing: the program is killed there, the disk
is full, access is denied, the device reports an error, the network drive is read-only or gone. After that:

 - nothing that was filed before is lost or changed, and no file is half written;
 - a spectrum whose result came on screen is on disk, and no record speaks of a spectrum that is not;
 - the program was killed: it starts again and takes a sample; a Standard that it had filed gets its row, a file that
   was moving aside is there once, and nothing that it was writing lies about;
 - anything else: the user was told by number and text, is back on the screen that the action began on, takes a sample
   once the fault is gone, and leaves in the ordinary way.
"""

import argparse
import collections
import shutil
import signal
import sys
import tempfile
from pathlib import Path

import scenarios
from archive import KILLS, NEXT_SAMPLE, PENDING, TEXTS, Archive, ArchiveCheck, Finding, require
from console import PANELS, Console

# Boxes of the program's own that tell of a fault: of the application, of the table behind the supervisor's grid, and of
# the settings at the end.
OWN_BOXES = ("Spectrometer reported an error", "The product table cannot be read. ", "The settings cannot be saved. ")
# What befalls a network drive, until somebody has seen to it.
GONE = ("read-only", "stale", "unplugged")
GONE_EVERY = 9
ERROR_NUMBERS = {"full": {61}, "denied": {70, 75}, "broken": {57}, "read-only": {70}, "stale": {71}, "unplugged": {71}}
TRIAL_SECONDS = 30
MOST_EVENTS_TOLD = 6

Operation = collections.namedtuple("Operation", "number name faults path")
Fault = collections.namedtuple("Fault", "operation kind lasts")


class Scenario:
    """A scenario with what it does when all is well."""

    def __init__(self, name, options, folder):
        self.name, self.options, self.folder = name, options, folder
        before, tried, behind = scenarios.SCENARIOS[name]
        self.lines = before + tried + behind
        self.base = folder / "base"
        self.base.mkdir()
        scenarios.prepare(name, self.base, options.setup, lambda lines: self.play_well(self.base, lines))
        self.before = Archive(self.base)
        root, report = self.copy("well"), folder / "operations"
        self.versions = collections.defaultdict(set)
        for name_of_text, data in self.before.of_kind(*TEXTS).items():
            self.versions[name_of_text].add(data)
        counts = [0]

        def after_line(played_root):
            self.note_versions(played_root)
            counts.append(len(report.read_text().splitlines()))

        self.events = self.play_well(root, self.lines, self.watch(root, report), after_line)
        self.after = Archive(root)
        self.operations = [Operation(int(words[0]), words[1], words[2].split(","), words[3])
                           for words in (line.split(" ", 3) for line in report.read_text().splitlines())]
        self.check_that_all_is_counted(root)
        # What the program does at its very end comes behind its last line.
        last = counts[len(before) + len(tried)] if behind else len(self.operations)
        self.tried = self.operations[counts[len(before)]:last]

    def copy(self, name):
        root = self.folder / name
        shutil.rmtree(root, ignore_errors=True)
        shutil.copytree(self.base, root, copy_function=shutil.copyfile)
        return root

    def watch(self, root, report):
        report.unlink(missing_ok=True)
        return {"LD_PRELOAD": str(self.options.library), "FILE_FAULTS_BELOW": str(root / "drive_c"),
                "FILE_FAULTS_REPORT": str(report)}

    def play_well(self, root, lines, variables=None, after_line=lambda root: None):
        """Plays lines that nothing disturbs; returns the events of each."""
        with Console(self.options.console, root, scenarios.CLOCK, variables) as console:
            events = []
            for line in lines:
                events.append(console.play(line))
                after_line(root)
            wrong = [event for told in events for event in told if event.get("event") in ("error", "refused")]
            status = console.end()
            require(status == 0 and not wrong, f"undisturbed, the scenario ends with {status}: {wrong}")
        return events

    def note_versions(self, root):
        for name, data in Archive(root).of_kind(*TEXTS).items():
            self.versions[name].add(data)

    def check_that_all_is_counted(self, root):
        """A file that changed without an operation on it would never see a fault."""
        touched = {str(Path(operation.path).relative_to(root / scenarios.DATA)) for operation in self.operations
                   if operation.path.startswith(str(root / scenarios.DATA))}
        changed = {name for name in self.before.files.keys() | self.after.files.keys()
                   if self.before.files.get(name) != self.after.files.get(name)}
        require(changed and changed <= touched, f"changed without being counted: {sorted(changed - touched)}")

    def is_harmless(self, operation):
        """Whether a failure may go without a word: a time stamp (the data are whole), the closing of a file that has
        been flushed, and the removal of a file that is in nobody's way."""
        if operation.name == "close":
            earlier = [each.name for each in self.operations[:operation.number - 1] if each.path == operation.path]
            written = [name for name in earlier if name in ("write", "flush")]
            return not written or written[-1] == "flush"
        return operation.name == "set-time"

    def faults(self):
        """Every fault that is to be tried. A full or vanished disk stays so until somebody has seen to it."""
        for operation in self.tried:
            changes = "kill-before" in operation.faults
            if self.options.thorough or operation.number % GONE_EVERY == 0:
                yield from (Fault(operation, kind, True) for kind in GONE if kind in operation.faults)
            for kind in operation.faults:
                if kind in GONE:
                    continue
                if kind == "kill-after" and not self.options.thorough:
                    continue  # The disk is as it is when the next operation is killed before it begins.
                if not changes and operation.name in ("look", "list") and not self.options.thorough:
                    continue
                yield Fault(operation, kind, kind == "full")
            if changes and self.options.thorough:
                yield from (Fault(operation, kind, True) for kind in ("denied", "broken") if kind in operation.faults)


class Trial:
    """One play of a scenario with one fault."""

    def __init__(self, scenario, fault):
        self.scenario, self.fault = scenario, fault
        self.root = scenario.copy("root")
        self.report = scenario.folder / "report"
        self.switch = scenario.folder / "fault lasts"
        self.check = ArchiveCheck(scenario.before, scenario.after, scenario.versions, fault)
        self.announced = []
        self.told = []

    def run(self):
        variables = self.scenario.watch(self.root, self.report) | {
            "FILE_FAULTS_AT": str(self.fault.operation.number), "FILE_FAULTS_KIND": self.fault.kind}
        if self.fault.lasts:
            self.switch.touch()
            variables["FILE_FAULTS_WHILE"] = str(self.switch)
        with self.console(variables) as console:
            self.play_with_fault(console)
        require("fault " in self.report.read_text(), "the operation was not reached again")

    def console(self, variables=None):
        return Console(self.scenario.options.console, self.root, scenarios.CLOCK, variables)

    def play_with_fault(self, console):
        surfaced, began_on = False, console.panel
        for line, expected in zip(self.scenario.lines, self.scenario.events):
            if console.is_idle():
                began_on = console.panel
            self.told = console.play(line)
            self.announced = console.announced
            surfaced = self.told != expected
            if surfaced:
                break
        if self.fault.kind in KILLS:
            status = console.end()
            require(status == -9, f"the program was to be killed and ended with {status}")
            self.go_on_anew()
        elif surfaced:
            self.check_what_was_told(console, began_on)
        else:
            status = console.end()
            require(status == 0, f"the program ended with {status}")
            self.check_nothing_came_of_it()

    def go_on_anew(self):
        self.check.check(Archive(self.root), self.announced)
        with self.console() as console:
            for line in scenarios.START:
                self.play_undisturbed(console, line)
            self.go_on(console)
        self.check.check(Archive(self.root), self.announced)

    def check_what_was_told(self, console, began_on):
        self.check_message(console)
        while console.box is not None:
            buttons = console.box.get("buttons")
            self.told += console.play("answer No" if buttons == ["Yes", "No"] else "answer OK")
        if console.exit_event:
            # Without its data folder the program does not start. It says why and goes with status 1.
            require(console.end() == 1, "the program ended without being told to")
            self.lift()
            self.go_on_anew()
            return
        self.check_filing_was_told()
        for name in list(console.modal):
            console.play(f"close {name}")
        require(not console.status_shown, "the status window is still there")
        stays = console.panel == "fraSpectrum" and console.announced
        # What is told over the supervisor's panel keeps nobody out.
        has_gone_on = any(own in event["text"] for event in self.told if event.get("event") == "message"
                          for own in (OWN_BOXES[1], Path(PENDING).name))
        require(console.panel == began_on or stays or has_gone_on, f"the action began on {began_on} and left {console.panel}")
        self.check_panels(console)
        self.check.check(Archive(self.root), self.announced)
        self.lift()
        self.go_on(console)
        self.check.check(Archive(self.root), self.announced)

    def check_message(self, console):
        """An error with number and text, in a box; or a box of the program's own that carries the error's text."""
        require(console.box or console.exit_event, "the program behaves otherwise, but tells nobody")
        # A folder that cannot be looked at leads nowhere (76).
        wanted = ERROR_NUMBERS[self.fault.kind] | ({76} if self.fault.operation.name == "look" else set())
        errors = [event for event in self.told if event.get("event") == "error"]
        boxes = [event["text"] for event in self.told if event.get("event") == "message"]
        for error in errors:
            require(error["number"] in wanted, f"error {error['number']} for \"{self.fault.kind}\": {error['text']}")
            require("\\" in error["text"], f"which file is it? {error['text']}")
            require(console.exit_event or f"Run-time error {error['number']}: {error['text']}" in boxes,
                    f"no box for {error['text']}")
        require(errors or any(own in text for text in boxes for own in OWN_BOXES), f"not told as an error: {boxes}")

    def check_filing_was_told(self):
        """Whoever reads of an error has to know that the sample is filed all the same."""
        archive, filed_before = Archive(self.root), {spectrum.title for spectrum in self.scenario.before.samples()}
        records_text = b"".join(archive.of_kind(".his").values()).decode()
        texts = [event["text"] for event in self.told if event.get("event") == "error"]
        for spectrum in archive.samples():
            is_complete = f"\n{spectrum.title}," in records_text and "$Comparison" in dict(spectrum.labels)
            # The very saving reported an error where the folder was to be flushed.
            is_saving = self.fault.operation.name in ("flush-folder", "list")
            if spectrum.title not in filed_before and not is_complete and not is_saving:
                require(any("The sample is filed in " in text for text in texts), f"is it filed? {texts}")

    def check_panels(self, console):
        visible = [panel for panel in PANELS
                   if console.play(f"get frmVeritane.{panel}")[0]["visible"]]
        require(visible == [console.panel], f"visible panels: {visible}")

    def check_nothing_came_of_it(self):
        """Nobody was told, so nothing may be amiss."""
        operation = self.fault.operation
        require("kill-before" not in operation.faults or self.scenario.is_harmless(operation), "nobody was told")
        require(Archive(self.root).files == self.scenario.after.files, "nobody was told, and the files are others")

    def lift(self):
        self.switch.unlink(missing_ok=True)

    def play_undisturbed(self, console, line):
        events = console.play(line)
        wrong = [event for event in events if event.get("event") in ("error", "refused")]
        require(not wrong, f"once the fault is gone, \"{line}\" gives {wrong}")
        return events

    def settle_standard(self, console):
        """The supervisor lets a Standard that was filed without its row enter the table."""
        self.play_undisturbed(console, scenarios.SUPERVISOR[0])
        if console.box is not None:
            require("does not name it" in console.box["text"], f"not told of as filed: {console.box}")
            self.play_undisturbed(console, "answer Yes")
        self.play_undisturbed(console, "click frmVeritane.cmdMainMenu")

    def go_on(self, console):
        """A sample of the same product and the ordinary end, with nothing disturbed any more."""
        self.check.has_next_sample = True
        if console.panel != "fraMainMenu":
            back = "cmdBacktoMainMenu" if console.panel == "fraSpectrum" else "cmdMainMenu"
            self.play_undisturbed(console, f"click frmVeritane.{back}")
        if console.panel == "fraSupervisorMode":
            self.play_undisturbed(console, "click frmVeritane.cmdMainMenu")
        if PENDING in Archive(self.root).files:
            self.settle_standard(console)
        lines = scenarios.sample(NEXT_SAMPLE)
        for line in lines[:lines.index("answer OK") - 1]:
            self.play_undisturbed(console, line)
        while console.box is not None:
            material = "empty" if "for Background" in console.box["text"] else "polystyrene"
            self.play_undisturbed(console, f'app sample "{material}"')
            self.play_undisturbed(console, "answer OK")
        require(console.panel == "fraSpectrum", "the next sample has no result")
        chart = self.play_undisturbed(console, "get frmVeritane.chart")[0]
        require("PASS" in chart["labels"], f"the next sample does not pass: {chart['labels']}")
        for line in scenarios.TO_MENU + scenarios.EXIT:
            self.play_undisturbed(console, line)
        status = console.end()
        require(status == 0, f"the program ended with {status}")
        self.announced = self.announced + console.announced


def hang(*_):
    raise Finding(f"the program is silent for {TRIAL_SECONDS} seconds")


def main():
    options = parse_arguments()
    signal.signal(signal.SIGALRM, hang)
    with tempfile.TemporaryDirectory(prefix="veritane-faults-") as folder:
        scenario = Scenario(options.scenario, options, Path(folder).resolve())
        tried, findings = collections.Counter(), 0
        for fault in scenario.faults():
            if options.only and str(fault.operation.number) not in options.only:
                continue
            trial = Trial(scenario, fault)
            tried[fault.kind] += 1
            signal.alarm(TRIAL_SECONDS)
            try:
                trial.run()
            except Finding as finding:
                findings += 1
                report(scenario, trial, finding)
            signal.alarm(0)
        kinds = ", ".join(f"{count} {kind}" for kind, count in sorted(tried.items()))
        print(f"{scenario.name}: {tried.total()} faults at {len(scenario.operations)} operations ({kinds}), "
              f"{findings} findings")
    return 1 if findings or not tried else 0


def report(scenario, trial, finding):
    operation, kind, lasts = trial.fault
    place = operation.path.split(str(scenarios.DATA) + "/")[-1]
    print(f"FAILED: {scenario.name}, operation {operation.number} ({operation.name} {place}), {kind}"
          f"{' until lifted' if lasts else ''}: {finding}")
    for event in trial.told[-MOST_EVENTS_TOLD:]:
        print(f"    {event}")


def parse_arguments():
    parser = argparse.ArgumentParser(description=__doc__.split("\n", maxsplit=1)[0])
    parser.add_argument("--console", required=True, type=Path, help="the program veritane-console")
    parser.add_argument("--setup", required=True, type=Path, help="the program veritane-setup")
    parser.add_argument("--library", required=True, type=Path, help="the library that injects faults")
    parser.add_argument("--thorough", action="store_true", help="also faults whose like another one covers")
    parser.add_argument("--only", nargs="*", help="the numbers of the operations that fail")
    parser.add_argument("scenario", choices=scenarios.SCENARIOS)
    return parser.parse_args()


if __name__ == "__main__":
    sys.exit(main())
