"""The program without its window, for benchmarks: veritane-console, one line at a time."""
import json
import subprocess
import sys

DATA = "C:\\ProgramData\\Kestrova\\Veritane\\"


class Console:
    """Plays lines on a data folder and reads the events that they lead to."""

    def __init__(self, program, root):
        self.process = subprocess.Popen([program, "--root", root], stdin=subprocess.PIPE, stdout=subprocess.PIPE,
                                        text=True, encoding="utf-8", bufsize=1)

    def send(self, *lines):
        for line in lines:
            self.process.stdin.write(line + "\n")
        self.process.stdin.flush()

    def wait_for(self, **wanted):
        """Reads events up to the one with these members, and returns that one."""
        for line in self.process.stdout:
            event = json.loads(line)
            if event.get("event") in ("error", "refused", "exit"):
                sys.exit(f"waiting for {wanted}: {line}")
            if wanted.items() <= event.items():
                return event
        sys.exit(f"the program ended before {wanted}")

    def measure(self, product, name, boxes=("answer OK",)):
        """One sample up to its result on screen."""
        self.send("click frmVeritane.cmdSample", f"choose frmSamp.cmbStandards \"{product}\"",
                  f"type frmSamp.txtSampName \"{name}\"", "type frmSamp.txtOperatorName \"Ann\"",
                  "click frmSamp.cmdProductIDOkay", *boxes)
        self.wait_for(event="panel", name="fraSpectrum", shown=True)
        self.send("click frmVeritane.cmdBacktoMainMenu")

    def end(self):
        """Ends the program by its button."""
        self.send("click frmVeritane.cmdExit")
        self.process.stdin.close()
        self.process.stdout.read()
        if self.process.wait() != 0:
            sys.exit(f"the program ended with {self.process.returncode}")
