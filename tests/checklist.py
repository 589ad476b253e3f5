"""What the whole-program tests (run under a private X server) share: checks that report
as they go and are counted at the end, and xdotool for the keyboard and the mouse."""
import subprocess
import time

failures = []


def check(condition, message):
    print(("ok    " if condition else "FAIL  ") + message, flush=True)
    if not condition:
        failures.append(message)


def xdotool(*args, timeout=30):
    """xdotool's output as words; none when it did not answer in time."""
    try:
        result = subprocess.run(["xdotool"] + list(args), capture_output=True, text=True,
                                timeout=timeout)
    except subprocess.TimeoutExpired:
        return []
    return result.stdout.split()


def wait_until(get, timeout=30, interval=0.2):
    """Calls get until it gives something true or the time is up; its last answer."""
    deadline = time.time() + timeout
    value = get()
    while not value and time.time() < deadline:
        time.sleep(interval)
        value = get()
    return value
