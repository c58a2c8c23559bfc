"""Interactive shells in a terminal, to see what the Tab key does."""
import os
import pty
import select
import signal
import time

DEADLINE = 30  # seconds


class Shell:
    """A shell that has loaded its completions of corvel. A key prints the line that is being typed."""

    def __init__(self, command, setup, folder, environment):
        self.text = ""
        self.pid, self.terminal = pty.fork()
        if self.pid == 0:
            os.chdir(folder)
            os.execvpe(command[0], command, {**os.environ, **environment, "TERM": "dumb"})
        self.send("stty -echo rows 500 columns 200\n" + setup + "\necho ready_$((40 + 2))\n")
        self.wait_for("ready_42")

    def close(self):
        os.kill(self.pid, signal.SIGKILL)
        os.waitpid(self.pid, 0)
        os.close(self.terminal)

    def __enter__(self):
        return self

    def __exit__(self, *_):
        self.close()

    def send(self, text):
        os.write(self.terminal, text.encode())

    def wait_for(self, words):
        """Returns what is printed up to the words."""
        end = time.monotonic() + DEADLINE
        while words not in self.text:
            ready, _, _ = select.select([self.terminal], [], [], max(0, end - time.monotonic()))
            if not ready:
                raise TimeoutError(f"no {words!r} in {self.text!r}")
            self.text += os.read(self.terminal, 65536).decode(errors="replace")
        before, self.text = self.text.split(words, 1)
        return before

    def completed(self, line):
        """Returns the line after Tab has been pressed at its end."""
        self.send(line + "\t\x14")
        self.wait_for("<<")
        result = self.wait_for(">>")
        self.send("\x15")  # deletes the line
        return result

    def listed(self, line):
        """Returns what Tab, pressed twice, lists for the line, and the line after that."""
        self.send(line + "\t\t\x14")
        result = self.wait_for("<<") + self.wait_for(">>")
        self.send("\x15")
        return result
