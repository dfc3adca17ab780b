"""What a laboratory has on disk, and what must hold of it after a fault, whatever the fault was."""

import collections
import contextlib

import records
import scenarios

KILLS = ("kill-before", "kill-after", "kill-halfway")
# Files that are replaced whole: one of the versions that the scenario writes is there.
TEXTS = ("Meth.tbl", "Meths.tbl", "settings.ini", ".pro", ".nul", ".clm", ".bpt", ".cal", "peaks.txt")
NEXT_SAMPLE = "afterwards"
PENDING = "Standards/Pending.tbl"
LINES_OF_NEXT_SAMPLE = (
    records.HISTOGRAM_HEADER, f"{NEXT_SAMPLE},11/21/26 10:59:00,SURVEY,Euclidean,Pass, 100,Ann",
    f"Ann,{scenarios.DATA_FOLDER}Samples\\SURVEY.bsp,11/21/26,10:59:00",
    "Supervisor Mode accessed on 11/21/26 at 10:59:00")


class Finding(Exception):
    """The program did what it must not; the text says what."""


def require(condition, text):
    if not condition:
        raise Finding(text)


@contextlib.contextmanager
def finding_in(name):
    """A file that turns out to be damaged is a finding."""
    try:
        yield
    except records.Damaged as damage:
        raise Finding(f"{name} is damaged: {damage}") from damage


def identity_of(spectrum):
    """A spectrum without its labels: it may get named values when it is filed already."""
    return spectrum.title, spectrum.ordinates


class Archive:
    """The files of the data folder, by their path below it."""

    def __init__(self, root):
        self.files = records.files_below(root / scenarios.DATA)

    def of_kind(self, *endings):
        return {name: data for name, data in self.files.items() if name.endswith(endings)}

    def documents(self, folder):
        """The spectra of each document in a folder, every document whole."""
        found = {}
        for name, data in self.of_kind(".bsp").items():
            if name.startswith(folder + "/"):
                with finding_in(name):
                    found[name] = records.spectra_of(data)
        return found

    def samples(self):
        return [spectrum for spectra in self.documents("Samples").values() for spectrum in spectra]

    def lines(self, name):
        return records.whole_lines(self.files.get(name, b""))


class ArchiveCheck:
    """Compares an archive with those before and after the undisturbed scenario; `versions` has the texts in between."""

    def __init__(self, before, after, versions, fault):
        self.before, self.after, self.versions, self.fault = before, after, versions, fault
        self.has_next_sample = False

    def check(self, archive, announced):
        self.check_names(archive)
        self.check_texts(archive)
        self.check_standards(archive)
        self.check_samples(archive)
        self.check_records(archive)
        self.check_announced(archive, announced)
        for name, data in archive.of_kind(".pdf").items():
            with finding_in(name):
                records.check_print(data)

    def check_names(self, archive):
        known = self.before.files.keys() | self.after.files.keys() | {PENDING}
        litter = {name for name in archive.files if records.is_temporary(name)}
        # Who may change nothing any more cannot clear up either.
        is_excused = self.fault.lasts and self.fault.kind != "full" or self.fault.operation.name == "delete"
        if self.fault.kind in KILLS:
            is_excused = not self.has_next_sample
        require(not litter or is_excused, f"litter: {litter}")
        require(PENDING not in archive.files or not self.has_next_sample, f"{PENDING} is still there")
        strange = [name for name in archive.files.keys() - known - litter
                   if not name.startswith(("Prints/", "Samples/SURVEY"))]
        require(not strange, f"files from nowhere: {strange}")
        # A sample file may have made room for the next one; its spectra are looked for one by one.
        kept = {name for name in self.before.files.keys() & self.after.files.keys()
                if not (name.startswith("Samples/") and name.endswith(".bsp"))}
        require(kept <= archive.files.keys(), f"files are gone: {sorted(kept - archive.files.keys())}")

    def check_texts(self, archive):
        for name, data in archive.of_kind(*TEXTS).items():
            require(data in self.versions[name], f"{name} is neither old nor new: {data[:200]}")

    def check_standards(self, archive):
        before, after = self.before.documents("Standards"), self.after.documents("Standards")
        for name, spectra in archive.documents("Standards").items():
            require(spectra in (before.get(name), after.get(name)), f"{name} is neither old nor new")
        for row in archive.lines("Meth.tbl")[0][1:]:
            standard = f"Standards/{row.split(',')[0]}.bsp"
            require(not row or standard in archive.files, f"the product table speaks of {standard}, which is not filed")
        if self.has_next_sample:
            self.check_every_standard_has_its_row(archive)

    def check_every_standard_has_its_row(self, archive):
        """Those that are there from the beginning are no products, some of them."""
        products = {row.split(",")[0] for row in archive.lines("Meth.tbl")[0][1:]}
        for name in archive.files.keys() - self.before.files.keys():
            if name.startswith("Standards/") and name.endswith(".bsp") and not name.startswith("Standards/back"):
                require(name[10:-4] in products, f"{name} is filed, but the product table does not name it")

    def kept_samples(self):
        """Those filed before, except of a product that the scenario deletes."""
        return [spectrum for name, spectra in self.before.documents("Samples").items() if name in self.after.files
                for spectrum in spectra]

    def check_samples(self, archive):
        """What was filed before is there unchanged; all else is what the scenario files, each spectrum once."""
        missing = collections.Counter(self.kept_samples()) - collections.Counter(archive.samples())
        require(not missing, f"spectra are gone or changed: {[spectrum.title for spectrum in missing]}")
        before = set(map(identity_of, self.before.samples()))
        after = set(map(identity_of, self.after.samples()))
        new = collections.Counter(identity for identity in map(identity_of, archive.samples()) if identity not in before)
        for title, ordinates in new:
            is_next = self.has_next_sample and title == NEXT_SAMPLE
            require(is_next or (title, ordinates) in after, f"a spectrum from nowhere: {title}")
        require(not new or max(new.values()) == 1, f"filed twice: {[title for title, _ in new]}")
        # A file that makes room is there twice for a moment, and no longer once the next sample is filed.
        if self.has_next_sample:
            doubled = (collections.Counter(map(identity_of, archive.samples())) - new
                       - collections.Counter(map(identity_of, self.before.samples())))
            require(not doubled, f"filed twice: {[title for title, _ in doubled]}")

    def check_records(self, archive):
        titles = collections.Counter(spectrum.title for spectrum in archive.samples())
        for name in archive.of_kind(".his"):
            lines = self.check_lines(archive, name)
            with finding_in(name):
                records.check_histogram(lines)
            rows = collections.Counter(line.split(",")[0] for line in lines[1:]
                                       if line.count(",") == records.HISTOGRAM_FIELDS - 1)
            require(rows <= titles, f"{name} speaks of spectra that are not filed: {rows - titles}")
        lines = self.check_lines(archive, "log.txt")
        require(sum(line.startswith("Ann,") for line in lines) <= titles.total(), "log.txt speaks of too many samples")
        if self.has_next_sample:
            require(LINES_OF_NEXT_SAMPLE[1] in archive.lines("Samples/SURVEY.his")[0],
                    f"the next sample has no line of its own: {archive.files.get('Samples/SURVEY.his')}")

    def check_lines(self, archive, name):
        """The lines filed before, then lines of this scenario, of which a kill may have torn one."""
        before, after = self.before.lines(name)[0], self.after.lines(name)[0]
        lines, rest = archive.lines(name)
        require(lines[:len(before)] == before, f"{name} has lost lines that were filed before")
        allowed = after + list(LINES_OF_NEXT_SAMPLE if self.has_next_sample else ())
        foreign = [line for line in lines[len(before):] if line not in allowed] + ([rest] if rest else [])
        may_tear = self.fault.kind == "kill-halfway" and self.fault.operation.path.endswith("/" + name)
        is_torn = may_tear and len(foreign) == 1 and any(line.startswith(foreign[0]) for line in after)
        require(not foreign or is_torn, f"{name} holds what nobody wrote: {foreign}")
        return lines

    def check_announced(self, archive, announced):
        titles = {spectrum.title for spectrum in archive.samples()}
        for form, name in announced:
            is_filed = name in titles if form == "frmSamp" else f"Standards/{name}.bsp" in archive.files
            require(is_filed, f"{name} was shown, but it is not filed")
