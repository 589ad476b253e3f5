#!/usr/bin/env python3
"""The real program and the companion service, as a user meets them.

    test_service_program.py BUILD

Runs under a private X server (xvfb-run). Each case starts build/tavoric with an empty home
folder whose settings hold an accepted agreement with update checks, and the stand-in
service (build/service_standin) in a temporary folder of the case's own (TMPDIR, where the
local socket lives), and reads the stand-in's transcript of the conversation:

  - a normal run and a normal exit: greeting, version check, "NoUpdate", goodbye;
  - an update: "FindUpdate", the question answered Yes with the keyboard, the download
    ("wait", "DownloadWaiting", "complete"), the message confirmed, and the program closes
    by itself after "closeToDoNot", saying goodbye;
  - a service that does no network work: nothing but the greeting and the goodbye;
  - no service: the program starts all the same; killed, it leaves the log with the link's
    error and state lines and no message sent.
"""
import os
import shutil
import signal
import subprocess
import sys
import tempfile
import time

from checklist import check, failures, xdotool

BUILD = sys.argv[1]
PROGRAM = os.path.join(BUILD, "tavoric")
STANDIN = os.path.join(BUILD, "service_standin")


def wait_until(condition, timeout=30):
    deadline = time.time() + timeout
    while time.time() < deadline:
        if condition():
            return True
        time.sleep(0.1)
    return False


class Case:
    """A home folder, a socket folder, maybe the stand-in, and the program."""

    def __init__(self, name, answers=None, service=True):
        self.name = name
        self.folder = tempfile.mkdtemp(prefix="service-program-")
        self.home = os.path.join(self.folder, "home")
        self.sockets = os.path.join(self.folder, "tmp")
        os.makedirs(os.path.join(self.home, ".config", "qorbu"))
        os.makedirs(self.sockets)
        with open(os.path.join(self.home, ".config", "qorbu", "tavoric.conf"), "w") as conf:
            conf.write("[General]\nagreement=3\n")
        self.transcript_path = os.path.join(self.folder, "transcript.txt")
        self.env = dict(os.environ, HOME=self.home, TMPDIR=self.sockets)
        for key in ("XDG_CONFIG_HOME", "XDG_DATA_HOME"):
            self.env.pop(key, None)
        if os.geteuid() == 0:
            # Chromium (inside Qt WebEngine, for the map) refuses root with its sandbox.
            self.env["QTWEBENGINE_DISABLE_SANDBOX"] = "1"
            self.env["QTWEBENGINE_CHROMIUM_FLAGS"] = "--disable-gpu"
        self.standin = None
        if service:
            arguments = [STANDIN, "--transcript", self.transcript_path]
            for answer in answers or []:
                arguments += ["--answer", answer]
            self.standin = subprocess.Popen(arguments, env=self.env, stdout=subprocess.PIPE,
                                            text=True)
            check(self.standin.stdout.readline().strip() == "listening",
                  "%s: the stand-in service listens" % name)
        self.program = subprocess.Popen([PROGRAM], env=self.env, stdout=subprocess.DEVNULL,
                                        stderr=subprocess.DEVNULL)

    @property
    def log_path(self):
        return os.path.join(self.home, ".local", "share", "com.ZENTA_DASHCAM", "ZENTA DASHCAM",
                            "playerStatus.txt")

    def log(self):
        try:
            with open(self.log_path, encoding="utf-8", errors="replace") as log:
                return [line.rstrip("\n")[15:] for line in log]
        except OSError:
            return []

    def transcript(self):
        try:
            with open(self.transcript_path, encoding="utf-8") as transcript:
                return transcript.read().splitlines()
        except OSError:
            return []

    def window_built(self):
        return "[d] create mainWindow success" in self.log()

    def end(self, sig=signal.SIGTERM, timeout=30):
        """Ends the program (if it still runs) and returns its exit code."""
        if self.program.poll() is None:
            self.program.send_signal(sig)
        try:
            return self.program.wait(timeout=timeout)
        except subprocess.TimeoutExpired:
            self.program.kill()
            return None

    def close(self):
        if self.program.poll() is None:
            self.program.kill()
            self.program.wait()
        if self.standin is not None:
            self.standin.kill()
            self.standin.wait()
        shutil.rmtree(self.folder, ignore_errors=True)


def normal_run():
    case = Case("normal run")
    try:
        check(wait_until(lambda: "> NoUpdate" in case.transcript()),
              "normal run: the program greets the service and asks for a newer version")
        check(wait_until(case.window_built), "normal run: the window is built")
        code = case.end()
        check(code == 0, "normal run: a normal exit ends with code 0 (%s)" % code)
        expected = ["+", "< HelloLauncher", "> HelloClient", "< 1.0.6", "> NoUpdate",
                    "< GoodbyeLauncher", "-"]
        check(wait_until(lambda: case.transcript() == expected, 5),
              "normal run: the whole conversation, HelloLauncher to GoodbyeLauncher (%s)" %
              case.transcript())
        check(not os.path.exists(case.log_path), "normal run: the status log is removed")
    finally:
        case.close()


def update_run():
    case = Case("update", ["@version=FindUpdate", "Download=wait",
                           "DownloadWaiting=@sleep=500|complete"])
    try:
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
        code = None
        try:
            code = case.program.wait(timeout=30)
        except subprocess.TimeoutExpired:
            pass
        check(code == 0, "update: the program closes by itself, code 0 (%s)" % code)
        expected = ["+", "< HelloLauncher", "> HelloClient", "< 1.0.6", "> FindUpdate",
                    "< Download", "> wait", "< DownloadWaiting", "> complete",
                    "< closeToDoNot", "< GoodbyeLauncher", "-"]
        check(wait_until(lambda: case.transcript() == expected, 5),
              "update: the conversation ends with closeToDoNot and the goodbye (%s)" %
              case.transcript())
    finally:
        case.close()


def network_switched_off():
    case = Case("no network", ["HelloLauncher=DisableNetwork"])
    try:
        check(wait_until(case.window_built), "no network: the window is built")
        time.sleep(1.0)
        code = case.end()
        check(code == 0, "no network: a normal exit ends with code 0 (%s)" % code)
        expected = ["+", "< HelloLauncher", "> DisableNetwork", "< GoodbyeLauncher", "-"]
        check(wait_until(lambda: case.transcript() == expected, 5),
              "no network: no version check, the goodbye all the same (%s)" %
              case.transcript())
    finally:
        case.close()


def no_service():
    case = Case("no service", service=False)
    try:
        check(wait_until(case.window_built), "no service: the window is built all the same")
        case.end(signal.SIGKILL)
        log = case.log()
        check("[e] N: Error = ServerNotFoundError" in log,
              "no service: the log names the missing service")
        check("[i] N: State = UnconnectedState" in log, "no service: the log has the state")
        check(not any("Send Message" in line for line in log),
              "no service: nothing is sent")
    finally:
        case.close()


normal_run()
update_run()
network_switched_off()
no_service()
if failures:
    print("%d check(s) failed" % len(failures))
    sys.exit(1)
print("all checks passed")
