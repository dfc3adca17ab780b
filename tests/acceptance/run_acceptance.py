#!/usr/bin/env python3
"""Plays acceptance scripts with veritane-console and compares what it prints with what is expected.

For each NAME.script a data folder is laid out by veritane-setup in a temporary root, the script is played
there, and the lines printed must be those of NAME.expected beside it, one for one.

A script can ask for more in comments of its own:

    #! console --locale en_GB          options for veritane-console
    #! root settings.ini C:\\ProgramData\\Kestrova\\Veritane\\settings.ini
                                       copies a file beside the script into the data folder before the run
    #! show C:\\ProgramData\\Kestrova\\Veritane\\log.txt
                                       prints that file behind the events, so that it is compared too

With --launcher the programs are those of another system: the launcher (Wine) starts them, and paths are handed to them
as they know them. With --server the console drives that program by automation instead of the simulator in its own
process: what the simulator was called and what it printed is then known to the server alone, and those events are not
compared.

What differs from run to run is masked before the comparison: the temporary root becomes <root>, and the
program's version in its window title <version>. Times are fixed by the script's `now`, in the time zone UTC.
"""

import argparse
import contextlib
import difflib
import json
import os
import re
import shlex
import shutil
import subprocess
import sys
import tempfile
import time
from pathlib import Path

TIME_LIMIT_SECONDS = 300
SERVER_LIMIT_SECONDS = 20
KNOWN_TO_THE_SIMULATOR = ('{"event":"calls"', '{"event":"print","kind":"template"')


class Failure(Exception):
    """A run that cannot be compared; the text says why."""


def main():
    options = parse_arguments()
    failed = [script for script in options.scripts if not check(script, options)]
    if failed:
        print(f"{len(failed)} of {len(options.scripts)} scripts failed.")
    return 1 if failed else 0


def parse_arguments():
    parser = argparse.ArgumentParser(description="Plays acceptance scripts and compares their events.")
    parser.add_argument("--console", required=True, type=program, help="the program veritane-console")
    parser.add_argument("--setup", required=True, type=program, help="the program veritane-setup")
    parser.add_argument("--launcher", type=program, help="starts the programs of another system")
    parser.add_argument("--server", type=program, help="the automation server that the console is to drive")
    parser.add_argument("--update", action="store_true", help="write the .expected files")
    parser.add_argument("scripts", nargs="+", type=Path, metavar="SCRIPT")
    return parser.parse_args()


def program(path):
    return Path(path).absolute()


def lines_of(text):
    """Lines as the programs write them; other characters that Python takes for line ends stay inside."""
    lines = [line.removesuffix("\r") for line in text.split("\n")]
    return lines if lines[-1] else lines[:-1]


def check(script, options):
    """Plays one script; returns whether it did what is expected."""
    expected_file = script.with_suffix(".expected")
    try:
        actual = play(script, options)
        if options.update:
            expected_file.write_text("\n".join(actual) + "\n", encoding="utf-8")
            print(f"written: {expected_file}")
            return True
        if not expected_file.exists():
            raise Failure(f"{expected_file} is missing; --update writes it.")
        expected = lines_of(expected_file.read_text(encoding="utf-8"))
        if options.server:
            actual, expected = ([line for line in lines if not line.startswith(KNOWN_TO_THE_SIMULATOR)]
                                for lines in (actual, expected))
    except (Failure, OSError) as failure:
        print(f"FAILED: {script}: {failure}")
        return False
    if actual == expected:
        print(f"passed: {script}")
        return True
    print(f"FAILED: {script}")
    print("\n".join(difflib.unified_diff(expected, actual, "expected", "printed", lineterm="", n=3)))
    return False


def play(script, options):
    """Plays one script in a root of its own; returns the masked lines that it printed."""
    wishes = read_wishes(script)
    with tempfile.TemporaryDirectory(prefix="veritane-") as folder:
        root = Path(folder).resolve() / "root"
        root.mkdir()
        run([options.setup, "--root", foreign(root, options)], options, allowed=[0])
        for words in wishes["root"]:
            place_file(script.parent / words[0], in_root(root, words[1]))
        # The plain formats of dates, unless the script wants others.
        console_options = ["--locale", "C"] + [word for words in wishes["console"] for word in words]
        if options.server:
            console_options += ["--instrument", "real"]
        console = [options.console, "--root", foreign(root, options), *console_options, foreign(script, options)]
        with served(root, console_options, options):
            lines, status = run(console, options, allowed=[0, 1, 2])
        check_exit(lines, status)
        for words in wishes["show"]:
            lines += show(root, words[0])
        return [mask(line, root) for line in lines]


def read_wishes(script):
    """The words of the script's "#!" comments, by their first word."""
    wishes = {"console": [], "root": [], "show": []}
    words_needed = {"root": 2, "show": 1}
    for line in lines_of(script.read_text(encoding="utf-8")):
        if not line.startswith("#!"):
            continue
        lexer = shlex.shlex(line[2:], posix=True, punctuation_chars=False)
        lexer.whitespace_split, lexer.escape, lexer.commenters = True, "", ""
        first, *words = list(lexer) or [""]
        if first not in wishes or len(words) != words_needed.get(first, len(words)):
            raise Failure(f"not understood: {line}")
        wishes[first].append(words)
    return wishes


def foreign(path, options):
    """A path as the programs know it."""
    return f"Z:{path.resolve()}".replace("/", "\\") if options.launcher else path


def command_line(command, options):
    return [str(word) for word in ([options.launcher] if options.launcher else []) + command]


def environment():
    variables = {name: value for name, value in os.environ.items() if name not in ("VERITANE_HOME", "LANG")}
    return variables | {"TZ": "UTC", "LC_ALL": "C.UTF-8"}


@contextlib.contextmanager
def served(root, console_options, options):
    """The automation server, with the console's clock, while a script is played; it must end by itself."""
    if not options.server:
        yield
        return
    ready = root / "ready"
    clock = console_options[console_options.index("--now"):][:2] if "--now" in console_options else []
    command = [options.server, "/automation", "--root", foreign(root, options), "--ready", foreign(ready, options), *clock]
    with subprocess.Popen(command_line(command, options), env=environment(), stdin=subprocess.DEVNULL,
                          stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL) as server:
        try:
            deadline = time.monotonic() + SERVER_LIMIT_SECONDS
            while not ready.exists():
                if server.poll() is not None or time.monotonic() > deadline:
                    raise Failure("the automation server does not start")
                time.sleep(0.05)
            yield
            if server.wait(SERVER_LIMIT_SECONDS) != 0:
                raise Failure(f"the automation server ended with {server.returncode}")
        except subprocess.TimeoutExpired as expired:
            raise Failure("the automation server goes on after the program has ended") from expired
        finally:
            if server.poll() is None:
                server.kill()


def run(command, options, allowed):
    """Runs a program; returns the lines that it printed and its exit status."""
    command = command_line(command, options)
    try:
        done = subprocess.run(command, stdin=subprocess.DEVNULL, capture_output=True, env=environment(),
                              timeout=TIME_LIMIT_SECONDS, check=False)
    except subprocess.TimeoutExpired as expired:
        printed = lines_of((expired.stdout or b"").decode("utf-8", "replace"))
        last = printed[-1] if printed else "none"
        raise Failure(f"not done after {TIME_LIMIT_SECONDS} s; last line: {last}") from expired
    if done.returncode not in allowed or done.stderr:
        complaint = done.stderr.decode("utf-8", "replace").rstrip() or "nothing"
        raise Failure(f"{shlex.join(command)}\nended with {done.returncode}, on standard error: {complaint}")
    try:
        return lines_of(done.stdout.decode("utf-8")), done.returncode
    except UnicodeDecodeError as error:
        raise Failure(f"what was printed is not UTF-8: {error}") from error


def check_exit(lines, status):
    """The last line must be the exit event, with the status that the system saw."""
    try:
        last = json.loads(lines[-1])
    except (IndexError, json.JSONDecodeError) as error:
        raise Failure("the last line is no event") from error
    if last.get("event") != "exit" or last.get("status") != status:
        raise Failure(f"exit status {status}, but the last line is {lines[-1]}")


def in_root(root, windows_path):
    """Where the C: drive's path lies, each name looked up without regard to case as the program does."""
    if not re.match(r"(?i)c:\\", windows_path):
        raise Failure(f"not a path on C: {windows_path}")
    place = root / "drive_c"
    for name in windows_path[3:].split("\\"):
        there = [child for child in (place.iterdir() if place.is_dir() else [])
                 if child.name.casefold() == name.casefold()]
        place = there[0] if there else place / name
    return place


def place_file(source, target):
    target.parent.mkdir(parents=True, exist_ok=True)
    shutil.copyfile(source, target)


def show(root, windows_path):
    file = in_root(root, windows_path)
    if not file.is_file():
        return [f"--- {windows_path}: no such file"]
    return [f"--- {windows_path}"] + lines_of(file.read_bytes().decode("utf-8", "backslashreplace"))


def mask(line, root):
    posix = str(root)
    windows = posix.replace("/", "\\")
    for volatile in (windows.replace("\\", "\\\\"), windows, posix):
        line = line.replace(volatile, "<root>")
    return re.sub(r"(Veritane - Version )\d+(\.\d+)*", r"\1<version>", line)


if __name__ == "__main__":
    sys.exit(main())
