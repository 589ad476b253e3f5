#!/usr/bin/env python3
"""The real program and the stand-in service (TMPDIR of its own) under a private X server,
read from the stand-in's transcript: a normal run (greeting, version check, goodbye), an
update answered Yes with the keyboard, downloaded, and the program closing itself, and a
service that does no network work.

    test_service_program.py BUILD
"""
import os
import shutil
import signal
import subprocess
import sys
import tempfile
import time

from checklist import check, failures, wait_until, xdotool

BUILD = sys.argv[1]
PROGRAM = os.path.join(BUILD, "tavoric")
STANDIN = os.path.join(BUILD, "service_standin")


class Case:
    """A home folder, a socket folder, the stand-in with its answers, and the program."""

    def __init__(self, name, answers=()):
        self.folder = tempfile.mkdtemp(prefix="service-program-")
        self.home = os.path.join(self.folder, "home")
        sockets = os.path.join(self.folder, "tmp")
        os.makedirs(os.path.join(self.home, ".config", "qorbu"))
        os.makedirs(sockets)
        with open(os.path.join(self.home, ".config", "qorbu", "tavoric.conf"), "w") as conf:
            conf.write("[General]\nagreement=3\n")
        self.transcript_path = os.path.join(self.folder, "transcript.txt")
        env = dict(os.environ, HOME=self.home, TMPDIR=sockets)
        for key in ("XDG_CONFIG_HOME", "XDG_DATA_HOME"):
            env.pop(key, None)
        if os.geteuid() == 0:
            # Chromium (inside Qt WebEngine, for the map) refuses root with its sandbox.
            env["QTWEBENGINE_DISABLE_SANDBOX"] = "1"
            env["QTWEBENGINE_CHROMIUM_FLAGS"] = "--disable-gpu"
        arguments = [STANDIN, "--transcript", self.transcript_path]
        for answer in answers:
            arguments += ["--answer", answer]
        self.standin = subprocess.Popen(arguments, env=env, stdout=subprocess.PIPE, text=True)
        check(self.standin.stdout.readline().strip() == "listening",
              "%s: the stand-in service listens" % name)
        self.program = subprocess.Popen([PROGRAM], env=env, stdout=subprocess.DEVNULL,
                                        stderr=subprocess.DEVNULL)
        self.log_path = os.path.join(self.home, ".local", "share", "com.ZENTA_DASHCAM",
                                     "ZENTA DASHCAM", "playerStatus.txt")

    def transcript(self):
        try:
            with open(self.transcript_path, encoding="utf-8") as transcript:
                return transcript.read().splitlines()
        except OSError:
            return []

    def window_built(self):
        try:
            with open(self.log_path, encoding="utf-8", errors="replace") as log:
                return any(line.endswith("[d] create mainWindow success\n") for line in log)
        except OSError:
            return False

    def end(self):
        """Ends the program (if it still runs) with SIGTERM and returns its exit code."""
        if self.program.poll() is None:
            self.program.send_signal(signal.SIGTERM)
        try:
            return self.program.wait(timeout=30)
        except subprocess.TimeoutExpired:
            self.program.kill()
            return None

    def close(self):
        for process in (self.program, self.standin):
            if process.poll() is None:
                process.kill()
                process.wait()
        shutil.rmtree(self.folder, ignore_errors=True)


def conversation(name, answers, expected, user=None):
    """The program against the stand-in with these answers: ended with SIGTERM once its
    window is built and the service's last answer has come, or after the user's part
    closing by itself; it must exit with 0, and the transcript be expected, to the letter."""
    case = Case(name, answers)
    try:
        if user is None:
            check(wait_until(lambda: case.window_built() and expected[-3] in case.transcript()),
                  "%s: the window is built and the service heard (%s)" %
                  (name, case.transcript()))
            time.sleep(1.0)  # room for a message that must not come
            code = case.end()
        else:
            user(case)
            wait_until(lambda: case.program.poll() is not None)
            code = case.program.poll()
        check(code == 0, "%s: the program ends with code 0 (%s)" % (name, code))
        check(wait_until(lambda: case.transcript() == expected, 5),
              "%s: the whole conversation (%s)" % (name, case.transcript()))
    finally:
        case.close()


def answer_the_update(case):
    question = xdotool("search", "--sync", "--onlyvisible", "--name", "^Update Message$",
                       timeout=30)
    check(bool(question), "update: the program asks whether to download the new version")
    if not question:
        return
    xdotool("windowfocus", "--sync", question[0])
    xdotool("key", "--window", question[0], "y")
    check(wait_until(lambda: "> complete" in case.transcript()),
          "update: Yes downloads it (%s)" % case.transcript())
    # The message that the program closes for the installer; Return confirms it.
    time.sleep(1.0)
    xdotool("key", "Return")


GREETED = ["+", "< HelloLauncher", "> HelloClient", "< 1.0.6"]
conversation("normal run", [], GREETED + ["> NoUpdate", "< GoodbyeLauncher", "-"])
conversation("update", ["@version=FindUpdate", "Download=wait", "DownloadWaiting=@sleep=500|complete"],
             GREETED + ["> FindUpdate", "< Download", "> wait", "< DownloadWaiting", "> complete",
                        "< closeToDoNot", "< GoodbyeLauncher", "-"], answer_the_update)
# No version check when the service does no network work, the goodbye all the same.
conversation("no network", ["HelloLauncher=DisableNetwork"],
             ["+", "< HelloLauncher", "> DisableNetwork", "< GoodbyeLauncher", "-"])
if failures:
    print("%d check(s) failed" % len(failures))
    sys.exit(1)
print("all checks passed")
