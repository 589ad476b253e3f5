#!/usr/bin/env python3
"""A new user's first minute, through the README's run command.

    test_firstrun.py ROOT BUILD PLAYBACK_MEDIA

Runs under a private X server (xvfb-run) so that the screen holds nothing but the program.
Each case starts from an empty home folder, so the privacy agreement is asked first; it is
accepted with the keyboard (Return on the dialog), as a user would. Then the screen is
grabbed and the scenes are checked for their pictures:

  - a recording named on the command line (`tools/run.sh FILE`): the front scene shows the
    front camera's red picture, the rear scenes its green and blue ones, and all three move;
  - the bare run command (`tools/run.sh`), which opens the demo recordings: all three scenes
    show a moving picture, none is black; the G-sensor chart shows its three axes, and the
    map (the side panel's map button) the route and the car, which moves.

The scenes are found from the window's position on the screen and the main window's own
description file, which places them. The last grab of each case is kept in BUILD/tests/ for
a person to look at. A normal exit (SIGTERM) must end with code 0 and remove the status log.
"""
import json
import os
import re
import shutil
import signal
import subprocess
import sys
import tempfile
import time

ROOT, BUILD, PLAYBACK = sys.argv[1], sys.argv[2], sys.argv[3]
FRONT_CHANNEL_FILE = os.path.join(PLAYBACK, "20240301_090000_INF_1.mp4")
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


class Screen:
    """One grab of the whole screen as rows of RGB bytes."""

    def __init__(self):
        ppm = subprocess.run(["import", "-window", "root", "-depth", "8", "ppm:-"],
                             capture_output=True, check=True).stdout
        # P6 header: magic, width, height, maximum, then one byte of white space.
        fields, index = [], 0
        while len(fields) < 4:
            while ppm[index:index + 1].isspace():
                index += 1
            end = index
            while not ppm[end:end + 1].isspace():
                end += 1
            fields.append(ppm[index:end])
            index = end
        self.width, self.height = int(fields[1]), int(fields[2])
        self.pixels = ppm[index + 1:]
        self.raw = ppm

    def pixel(self, x, y):
        offset = 3 * (y * self.width + x)
        return self.pixels[offset], self.pixels[offset + 1], self.pixels[offset + 2]

    def share(self, rect, test, step=4):
        """The share of the pixels in rect (x, y, w, h) for which test(r, g, b) holds."""
        x0, y0, w, h = rect
        hits = total = 0
        for y in range(max(0, y0), min(self.height, y0 + h), step):
            for x in range(max(0, x0), min(self.width, x0 + w), step):
                total += 1
                hits += test(*self.pixel(x, y))
        return hits / total if total else 0.0

    def differs(self, other, rect, step=4):
        """The share of pixels in rect that changed visibly between two grabs."""
        x0, y0, w, h = rect
        changed = total = 0
        for y in range(y0, y0 + h, step):
            for x in range(x0, x0 + w, step):
                a, b = self.pixel(x, y), other.pixel(x, y)
                total += 1
                changed += sum(abs(p - q) for p, q in zip(a, b)) > 30
        return changed / total if total else 0.0

    def save(self, path):
        subprocess.run(["convert", "ppm:-", path], input=self.raw, check=True)


def not_black(r, g, b):
    return r + g + b > 60


def red(r, g, b):
    return r > 160 and g < 90 and b < 90


def green(r, g, b):
    return g > 160 and r < 90 and b < 90


def blue(r, g, b):
    return b > 160 and r < 90 and g < 90


def entry(view, name):
    with open(os.path.join(ROOT, "Resources", "json", view + ".json"), encoding="utf-8") as f:
        item = json.load(f)[name]
    return (item["position"]["x"], item["position"]["y"], item["size"]["width"],
            item["size"]["height"])


def colour(hex_text, tolerance=40):
    r, g, b = (int(hex_text[i:i + 2], 16) for i in (1, 3, 5))
    return lambda pr, pg, pb: abs(pr - r) + abs(pg - g) + abs(pb - b) <= tolerance


ROUTE_COLOURS = [colour(c) for c in ("#65ca26", "#ffd21f", "#ff8a1f", "#ff3a00")]
CAR = colour("#2f7cf6")
AXES = [colour(c, 10) for c in ("#ff3a00", "#318dff", "#65ca26")]


def route(r, g, b):
    return any(test(r, g, b) for test in ROUTE_COLOURS)


def check_chart_and_map(window, name):
    """The G-sensor trace under the buttons, and the map with the route and the car once the
    side panel's map button is pressed; the car moves along."""
    wx, wy = window
    cx, cy, _, _ = entry("MainWindow", "ControlView")
    ax, ay, aw, ah = entry("PlayControlView", "chartView")
    chart = (wx + cx + ax, wy + cy + ay, aw, ah)
    grab = Screen()
    for axis, test in zip("XYZ", AXES):
        check(grab.share(chart, test, step=1) > 0.0005,
              "%s: the chart shows the %s axis" % (name, axis))
    # A click three quarters along the chart's bar moves playback there: the white position
    # line follows.
    bar_x, bar_y, bar_w, bar_h = entry("ChartView", "chartBar")
    left = chart[0] + bar_x
    xdotool("mousemove", str(left + bar_w * 3 // 4), str(chart[1] + bar_y + bar_h // 2),
            "click", "1")
    time.sleep(2.5)
    moved = Screen()
    white = [x for x in range(left, left + bar_w)
             if moved.pixel(x, chart[1] + bar_y + 3) == (255, 255, 255)]
    check(bool(white) and abs(white[0] - (left + bar_w * 3 // 4)) < bar_w // 10,
          "%s: a click on the chart moves playback there (line at %s of %d)" %
          (name, [x - left for x in white[:3]], bar_w))
    bx, by, bw, bh = entry("MainWindow", "bMap")
    xdotool("mousemove", str(wx + bx + bw // 2), str(wy + by + bh // 2), "click", "1")
    mx, my, mw, mh = entry("MainWindow", "MapView")
    area = (wx + mx, wy + my, mw, mh)
    first = None
    deadline = time.time() + 20
    while time.time() < deadline:
        first = Screen()
        if first.share(area, route, step=2) > 0.0005 and first.share(area, CAR, step=2) > 0.0005:
            break
        time.sleep(0.5)
    check(first.share(area, route, step=2) > 0.0005, "%s: the map shows the route" % name)
    check(first.share(area, CAR, step=2) > 0.0005, "%s: the map shows the car" % name)
    time.sleep(2.5)
    second = Screen()
    second.save(os.path.join(BUILD, "tests", "firstrun-%s-map.png" % name))
    check(second.differs(first, area, step=2) > 0.0005, "%s: the car moves on the map" % name)


def scene_rects(window_x, window_y):
    """The main scene (without the part the floating rear scenes cover) and the two rear
    scenes, on the screen."""
    sx, sy, sw, sh = entry("MainWindow", "StackedWidget")
    bx, by, _, _ = entry("MainWindow", "subSceneBackWidget")
    front = (window_x + sx, window_y + sy, bx - sx, sh)
    rears = []
    for name in ("subPlayer1", "subPlayer2"):
        px, py, pw, ph = entry("SubSceneBackWidget", name)
        # The buttons sit in the top right corner and the caption in the top left; the
        # lower half of a scene is picture only.
        rears.append((window_x + bx + px, window_y + by + py + ph // 2, pw, ph // 2))
    return front, rears


def main_window():
    """The screen position of the program's main window: its one large top-level window."""
    listing = subprocess.run(["xwininfo", "-root", "-children"], capture_output=True,
                             text=True).stdout
    pattern = re.compile(r'^\s*0x[0-9a-f]+ "ZENTA DASHCAM": \("tavoric" [^)]*\)\s+'
                         r'(\d+)x(\d+)\+(-?\d+)\+(-?\d+)')
    for line in listing.splitlines():
        match = pattern.match(line)
        if match and int(match.group(1)) > 600 and int(match.group(2)) > 400:
            return int(match.group(3)), int(match.group(4))
    return None


def run_case(name, arguments, expectations):
    print("--- " + name, flush=True)
    home = tempfile.mkdtemp(prefix="tavoric-home-")
    env = dict(os.environ, HOME=home, TAVORIC_BUILD=BUILD)
    for variable in ("XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_RUNTIME_DIR"):
        env.pop(variable, None)
    log_file = os.path.join(home, ".local/share/com.ZENTA_DASHCAM/ZENTA DASHCAM/playerStatus.txt")
    output = open(os.path.join(BUILD, "tests", "firstrun-%s.log" % name), "w")
    program = subprocess.Popen(["bash", os.path.join(ROOT, "tools", "run.sh")] + arguments,
                               env=env, stdout=output, stderr=subprocess.STDOUT)
    try:
        # The first start asks for the agreement before anything else.
        dialog = xdotool("search", "--sync", "--onlyvisible", "--name", "^Privacy agreement$",
                         timeout=300)
        check(bool(dialog), "the agreement dialog comes first")
        if not dialog:
            return
        xdotool("windowfocus", "--sync", dialog[0])
        xdotool("key", "--clearmodifiers", "Return")

        deadline = time.time() + 30
        window = None
        while time.time() < deadline and window is None:
            window = main_window()
            time.sleep(0.2)
        check(window is not None, "the main window is shown after the agreement")
        if window is None:
            return
        front, rears = scene_rects(*window)

        # The first recording starts by itself; wait for its picture.
        first = None
        deadline = time.time() + 30
        while time.time() < deadline:
            first = Screen()
            if all(first.share(front, test) > 0.5 for test in expectations["front"]):
                break
            time.sleep(0.5)
        time.sleep(1.2)
        second = Screen()
        second.save(os.path.join(BUILD, "tests", "firstrun-%s.png" % name))
        for test in expectations["front"]:
            check(second.share(front, test) > 0.5,
                  "%s: the front scene shows its picture (%s: %.0f %%)" %
                  (name, test.__name__, 100 * second.share(front, test)))
        check(second.differs(first, front) > 0.002,
              "%s: the front scene moves (%.2f %% changed in 1.2 s)" %
              (name, 100 * second.differs(first, front)))
        for index, (rect, tests) in enumerate(zip(rears, expectations["rears"])):
            for test in tests:
                check(second.share(rect, test) > 0.5,
                      "%s: rear scene %d shows its picture (%s: %.0f %%)" %
                      (name, index + 1, test.__name__, 100 * second.share(rect, test)))
            check(second.differs(first, rect) > 0.002,
                  "%s: rear scene %d moves" % (name, index + 1))
        if expectations.get("telemetry"):
            check_chart_and_map(window, name)
    finally:
        if program.poll() is None:
            program.send_signal(signal.SIGTERM)
            try:
                program.wait(20)
            except subprocess.TimeoutExpired:
                program.kill()
                program.wait()
        output.close()
    check(program.returncode == 0, "%s: the program ends normally (code %s)" %
          (name, program.returncode))
    check(not os.path.exists(log_file), "%s: a normal exit removes the status log" % name)
    shutil.rmtree(home, ignore_errors=True)


def main():
    os.makedirs(os.path.join(BUILD, "tests"), exist_ok=True)
    run_case("recording", [FRONT_CHANNEL_FILE],
             {"front": [red], "rears": [[green], [blue]]})
    run_case("demo", [], {"front": [not_black], "rears": [[not_black], [not_black]],
                          "telemetry": True})
    if failures:
        print("%d checks failed" % len(failures))
        sys.exit(1)


if __name__ == "__main__":
    main()
