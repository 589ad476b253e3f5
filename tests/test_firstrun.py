#!/usr/bin/env python3
"""A new user's first minute through the README's run command, under a private X server.

    test_firstrun.py ROOT BUILD

From an empty home the privacy agreement comes first; it is accepted with Return. The bare
command opens the demo recordings: moving pictures in every scene, the G-sensor chart, the
map's route and moving car, video and snapshots of every camera saved through the capture
dialog, the about view and the settings dialog, and the report saved as PDF. Scenes are found from the views'
description files; the grabs are kept in BUILD/tests/. (Each camera's picture in its own
scene is checked on the real main window by test_playthrough.)
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

from checklist import check, failures, wait_until, xdotool

ROOT, BUILD = sys.argv[1], sys.argv[2]


def parse_ppm(ppm):
    """Width, height and RGB bytes of a binary PPM (P6) picture."""
    header = re.match(rb"P6\s+(\d+)\s+(\d+)\s+\d+\s", ppm)
    return int(header.group(1)), int(header.group(2)), ppm[header.end():]


class Screen:
    """One grab of the whole screen (or a given PPM picture) as rows of RGB bytes."""

    def __init__(self, ppm=None):
        if ppm is None:
            ppm = subprocess.run(["import", "-window", "root", "-depth", "8", "ppm:-"],
                                 capture_output=True, check=True).stdout
        self.width, self.height, self.pixels = parse_ppm(ppm)
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
    """The G-sensor trace under the buttons, a click on it moving playback, and the map with
    the route and the car once the side panel's map button is pressed; the car moves."""
    wx, wy = window[:2]
    cx, cy, _, _ = entry("MainWindow", "ControlView")
    ax, ay, aw, ah = entry("PlayControlView", "chartView")
    chart = (wx + cx + ax, wy + cy + ay, aw, ah)
    grab = Screen()
    for axis, test in zip("XYZ", AXES):
        check(grab.share(chart, test, step=1) > 0.0005,
              "%s: the chart shows the %s axis" % (name, axis))
    # A click a quarter along the chart's bar: the white position line follows.
    bar_x, bar_y, bar_w, bar_h = entry("ChartView", "chartBar")
    left = chart[0] + bar_x
    target = left + bar_w // 4
    click(target, chart[1] + bar_y + bar_h // 2)
    def line():
        grab = Screen()
        white = [x for x in range(left, left + bar_w)
                 if grab.pixel(x, chart[1] + bar_y + 3) == (255, 255, 255)]
        return white if white and abs(white[0] - target) < bar_w // 10 else None
    white = wait_until(line, 10, 0.3)
    check(bool(white), "%s: a click on the chart moves playback there (line at %s of %d)" %
          (name, [x - left for x in (white or [])[:3]], bar_w))
    click_entry(window, "MainWindow", "bMap")
    mx, my, mw, mh = entry("MainWindow", "MapView")
    area = (wx + mx, wy + my, mw, mh)
    def route_and_car():
        grab = Screen()
        return grab if min(grab.share(area, route, step=2), grab.share(area, CAR, step=2)) \
            > 0.0005 else None
    first = wait_until(route_and_car, 20, 0.5) or Screen()
    check(first.share(area, route, step=2) > 0.0005, "%s: the map shows the route" % name)
    check(first.share(area, CAR, step=2) > 0.0005, "%s: the map shows the car" % name)
    time.sleep(2.5)
    second = Screen()
    second.save(os.path.join(BUILD, "tests", "firstrun-%s-map.png" % name))
    check(second.differs(first, area, step=2) > 0.0005, "%s: the car moves on the map" % name)


def window_named(title, what, timeout=20):
    """The screen position and id of a top-level window with this name once it shows; that
    it shows is a check."""
    found = xdotool("search", "--sync", "--onlyvisible", "--name", "^%s$" % title,
                    timeout=timeout)
    check(bool(found), what)
    if not found:
        return None
    words = xdotool("getwindowgeometry", found[0])  # "Window N", "Position:", "X,Y", ...
    x, y = words[words.index("Position:") + 1].split(",")
    return int(x), int(y), found[0]


def entry_rect(origin, view, name):
    """A child placed by a view's description, on the screen."""
    x, y, w, h = entry(view, name)
    return origin[0] + x, origin[1] + y, w, h


def click(x, y):
    xdotool("mousemove", str(x), str(y), "click", "1")


def click_entry(origin, view, name):
    """A click in the middle of a child placed by a view's description."""
    x, y, w, h = entry(view, name)
    click(origin[0] + x + w // 2, origin[1] + y + h // 2)


def files_in(folder, pattern, count):
    def found():
        names = os.listdir(folder) if os.path.isdir(folder) else []
        return sorted(f for f in names if re.match(pattern, f))
    return wait_until(lambda: found() if len(found()) >= count else None, 20, 0.3) or found()


def hold_still(window, name, log_file):
    """Pauses playback with Space, as a user would before saving or printing, and gives the
    file of the recording that stays on screen, as the status log names it."""
    def log():
        with open(log_file, encoding="utf-8", errors="replace") as f:
            return f.read()
    pauses = log().count("PlayerInterface::onPause")
    xdotool("windowfocus", "--sync", window[2])
    xdotool("key", "--clearmodifiers", "space")
    paused = wait_until(lambda: log().count("PlayerInterface::onPause") > pauses, 10)
    check(bool(paused), "%s: Space pauses playback" % name)
    opened = re.findall(r"\[PlayerInterface\]: Open (.*)", log())
    return os.path.basename(opened[-1].strip()) if opened else "?"


def check_save(column, name, home, playing):
    """Capture: each camera's picture offered, then its video saved under the movies folder
    and its snapshot under the pictures folder, one file per camera."""
    stem = re.escape(playing[:19])
    for mode, folder, pattern in (
            ("bSaveVideo", os.path.join(home, "Videos", "ZENTA"), stem + r"_[123]\.mp4$"),
            ("bSaveSnapshot", os.path.join(home, "Pictures", "ZENTA"),
             re.escape(playing[:-4]) + r"_[123]_\d+\.jpg$")):
        click_entry(column, "TavShortcutTable", "bCapture")
        dialog = window_named("Choose Save Scene", "%s: capture opens the save dialog" % name)
        if dialog is None:
            return
        time.sleep(0.5)
        _, page_y, _, _ = entry("SaveAsView", "pageScene")
        page = (dialog[0], dialog[1] + page_y)
        grab = Screen()
        pictures = [grab.share((page[0] + x + 2, page[1] + y + 2, w - 4, h - 4), not_black, 2)
                    for x, y, w, h in (entry("SaveAsView", "thumb%d" % i) for i in (1, 2, 3))]
        if mode == "bSaveVideo":
            grab.save(os.path.join(BUILD, "tests", "firstrun-%s-save.png" % name))
        check(all(share > 0.5 for share in pictures),
              "%s: the save dialog shows each camera's picture (%s)" %
              (name, ", ".join("%.0f %%" % (100 * s) for s in pictures)))
        click_entry(page, "SaveAsView", mode)
        time.sleep(0.5)
        click_entry(page, "SaveAsView", "bSave")
        files = files_in(folder, pattern, 3)
        check(len(files) == 3, "%s: %s writes one file per camera (%s)" % (name, mode, files))
        time.sleep(0.5)
        xdotool("key", "--clearmodifiers", "Return")  # the completion message
        time.sleep(0.5)


def check_service_views(column, name):
    """The about view and the settings dialog (on its crash-report page) open from the
    shortcut column without a companion service, show what they should where their
    descriptions put it, and close; their grabs are kept."""
    for button, title, view, chosen, parent, close, share in (
            ("bAbout", "About", "AboutView", "logo", None, "bOk", 0.05),
            ("bSetting", "Settings", "SettingView", "bCrashReport", "navWidget", "bCancel", 0.5)):
        click_entry(column, "TavShortcutTable", button)
        dialog = window_named(title, "%s: %s opens" % (name, title))
        if not dialog:
            continue
        px, py = entry(view, parent)[:2] if parent else (0, 0)
        origin = (dialog[0] + px, dialog[1] + py)
        if view == "SettingView":
            click_entry(origin, view, chosen)
        time.sleep(0.5)
        grab = Screen()
        grab.save(os.path.join(BUILD, "tests", "firstrun-%s-%s.png" % (name, title.lower())))
        x, y, w, h = entry(view, chosen)
        check(grab.share((origin[0] + x, origin[1] + y, w, h), CAR, 1) > share,
              "%s: %s shows %s in the program's blue" % (name, title, chosen))
        click_entry(dialog, view, close)
        check(wait_until(lambda: not xdotool("search", "--onlyvisible", "--name", "^%s$" % title),
                         10), "%s: %s closes" % (name, title))


def check_report(window, name, home, playing):
    """Print: the camera asked for, the report saved as PDF where the user typed, with the
    recording's values, its picture and the map on the page."""
    # The list in the side panel, as it was before the map was looked at.
    click_entry(window, "MainWindow", "bFilelist")
    sx, sy, _, _ = entry("MainWindow", "shortcutTable")
    click_entry((window[0] + sx, window[1] + sy), "TavShortcutTable", "bPrint")
    choice = window_named("Print", "%s: print asks for the camera" % name)
    if choice is None:
        return
    click_entry(choice, "PrintChannelSelectView", "bOk")
    report = window_named("Report", "%s: the report dialog opens" % name)
    if report is None:
        return
    time.sleep(0.8)
    Screen().save(os.path.join(BUILD, "tests", "firstrun-%s-report.png" % name))
    click_entry(report, "PrintView", "bSavePdf")
    save_dialog = window_named("Save as PDF", "%s: Save as PDF asks where" % name)
    if save_dialog is None:
        return
    pdf = os.path.join(home, "report.pdf")
    time.sleep(0.5)
    xdotool("windowfocus", "--sync", save_dialog[2])
    xdotool("key", "--clearmodifiers", "ctrl+a")
    xdotool("type", "--delay", "20", pdf)
    xdotool("key", "--clearmodifiers", "Return")
    def text():  # the file shows up before the page is all written
        if not os.path.exists(pdf):
            return None
        out = subprocess.run(["pdftotext", pdf, "-"], capture_output=True, text=True).stdout
        return out if "Km/h" in out else None
    text = wait_until(text, 20, 0.3)
    check(os.path.exists(pdf), "%s: the report is saved where the user typed" % name)
    time.sleep(0.5)
    xdotool("key", "--clearmodifiers", "Return")  # the message that says where
    if os.path.exists(pdf):
        text = text or ""
        for label in (re.escape("FileName: " + playing), r"G-Senor: X:", r"GPS:\d", "Km/h"):
            check(re.search(label, text), "%s: the report's text has %r" % (name, label))
        page_png = os.path.join(BUILD, "tests", "firstrun-%s-report-page.png" % name)
        subprocess.run(["pdftoppm", "-r", "96", "-png", "-singlefile", pdf, page_png[:-4]],
                       check=True)
        page = Screen(subprocess.run(["convert", page_png, "-depth", "8", "ppm:-"],
                                     capture_output=True, check=True).stdout)
        whole = (0, 0, page.width, page.height)
        # The page's pictures are compressed: the route's yellow comes out a little duller.
        yellowish = lambda r, g, b: r > 180 and g > 150 and b < 110 and r - b > 100
        check(page.share(whole, yellowish, step=1) > 0.0002 and page.share(whole, CAR, step=1) > 0.0001
              and page.share(whole, lambda r, g, b: abs(r - g) > 40 or abs(g - b) > 40) > 0.1,
              "%s: the page shows the camera's picture and the map with the route and the car"
              % name)
    click_entry(report, "PrintView", "bCancel")
    # The side panel shows the list again, as it did before Print (the map is shown only
    # while its picture is taken).
    def list_back():
        return Screen().share(entry_rect(window, "MainWindow", "bFilelist"), CAR, 2) > 0.5
    check(wait_until(list_back, 10, 0.3), "%s: after Print the side panel shows the list" % name)


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
    """The screen position and id of the program's main window: its one large top-level
    window (its name is in _NET_WM_NAME only, which xdotool's search does not read)."""
    listing = subprocess.run(["xwininfo", "-root", "-children"], capture_output=True,
                             text=True).stdout
    pattern = re.compile(r'^\s*(0x[0-9a-f]+) "ZENTA DASHCAM": \("tavoric" [^)]*\)\s+'
                         r'(\d+)x(\d+)\+(-?\d+)\+(-?\d+)')
    for line in listing.splitlines():
        match = pattern.match(line)
        if match and int(match.group(2)) > 600 and int(match.group(3)) > 400:
            return int(match.group(4)), int(match.group(5)), match.group(1)
    return None


def run_case(name, arguments):
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
        dialog = window_named("Privacy agreement", "the agreement dialog comes first", 300)
        if not dialog:
            return
        xdotool("windowfocus", "--sync", dialog[2])
        xdotool("key", "--clearmodifiers", "Return")
        window = wait_until(main_window, 30, 0.2)
        check(window is not None, "the main window is shown after the agreement")
        if window is None:
            return
        front, rears = scene_rects(window[0], window[1])
        scenes = list(zip(("front scene", "rear scene 1", "rear scene 2"), [front] + rears))

        # The first recording starts by itself; wait for its moving picture (the waiting
        # logo before it is not black either, but it stands still).
        def showing():
            before = Screen()
            time.sleep(0.3)
            grab = Screen()
            return grab if grab.share(front, not_black) > 0.5 and \
                grab.differs(before, front) > 0.002 else None
        first = wait_until(showing, 30, 0.5) or Screen()
        time.sleep(1.2)
        second = Screen()
        second.save(os.path.join(BUILD, "tests", "firstrun-%s.png" % name))
        for scene, rect in scenes:
            check(second.share(rect, not_black) > 0.5, "%s: the %s shows a picture (%.0f %%)" %
                  (name, scene, 100 * second.share(rect, not_black)))
            check(second.differs(first, rect) > 0.002, "%s: the %s moves (%.2f %% in 1.2 s)" %
                  (name, scene, 100 * second.differs(first, rect)))
        check_chart_and_map(window, name)
        playing = hold_still(window, name, log_file)
        sx, sy, _, _ = entry("MainWindow", "shortcutTable")
        column = (window[0] + sx, window[1] + sy)
        check_save(column, name, home, playing)
        check_service_views(column, name)
        check_report(window, name, home, playing)
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
    run_case("demo", [])
    if failures:
        print("%d checks failed" % len(failures))
        sys.exit(1)


if __name__ == "__main__":
    main()
