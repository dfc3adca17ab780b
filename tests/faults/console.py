"""veritane-console, played line by line: what each line makes happen is known before the next one is sent."""

import json
import os
import subprocess

TIME_LIMIT_SECONDS = 60
PANELS = ("fraMainMenu", "fraSupervisorMode", "fraSpectrum")


class Console:
    """One run of the program. After each line `box`, `modal` and `panel` say what is on screen."""

    def __init__(self, program, root, clock, variables=None):
        environment = {name: value for name, value in os.environ.items() if name not in ("VERITANE_HOME", "LANG")}
        environment |= {"TZ": "UTC", "LC_ALL": "C.UTF-8"} | (variables or {})
        self.process = subprocess.Popen([program, "--root", root, "--now", clock], env=environment, text=True,
                                        encoding="utf-8", bufsize=1, stdin=subprocess.PIPE, stdout=subprocess.PIPE,
                                        stderr=subprocess.PIPE)
        self.box = None
        self.modal = []
        self.panel = "fraMainMenu"
        self.status_shown = False
        self.exit_event = None
        # The samples and Standards whose result came on screen.
        self.announced = []
        self.being_measured = None

    def __enter__(self):
        return self

    def __exit__(self, *_):
        if self.process.poll() is None:
            self.process.kill()
        for stream in (self.process.stdin, self.process.stdout, self.process.stderr):
            stream.close()
        self.process.wait()

    def play(self, line):
        """Sends a line; returns the events up to the moment at which the program waits again, or its end."""
        if line.startswith(("type frmSamp.txtSampName ", "type frmCollectStd.txtProductID ")):
            self.being_measured = (line.split(".")[0][5:], line.split('"')[1])
        if line.startswith("answer "):
            self.box = None
        try:
            # The program answers "app calls" at any time, so that its event marks the end of the line's.
            self.process.stdin.write(line + "\napp calls\n")
            self.process.stdin.flush()
        except BrokenPipeError:
            pass
        events = []
        for text in self.process.stdout:
            event = json.loads(text)
            if event["event" if "event" in event else "control"] == "calls":
                return events
            self.note(event)
            events.append(event)
        return events

    def end(self):
        """No more lines; returns the exit status as the system saw it."""
        try:
            self.process.stdin.close()
        except BrokenPipeError:
            pass
        for text in self.process.stdout:
            self.note(json.loads(text))
        return self.process.wait(TIME_LIMIT_SECONDS)

    def note(self, event):
        kind, shown = event.get("event"), event.get("shown")
        if kind in ("message", "file-dialog"):
            self.box = event
        elif kind == "form" and event["modal"]:
            self.modal = self.modal + [event["name"]] if shown else [name for name in self.modal if name != event["name"]]
        elif kind == "form" and event["name"] == "frmStatus":
            self.status_shown = shown
        elif kind == "panel" and shown and event["name"] in PANELS:
            self.panel = event["name"]
            if self.panel == "fraSpectrum" and self.being_measured:
                self.announced.append(self.being_measured)
                self.being_measured = None
        elif kind == "exit":
            self.exit_event = event

    def is_idle(self):
        """Whether the main window waits for its user."""
        return self.box is None and not self.modal
