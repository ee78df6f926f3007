# SPDX-License-Identifier: MIT
"""A screen of its own with a person before it: presses keys and buttons, and sees when the picture changes.

Talks to the X server by its own library (which xdotool brings), as a new process for each look would take longer
than what is measured."""
import ctypes
import os
import subprocess
import time

ALL_PLANES = ctypes.c_ulong(-1).value
Z_PIXMAP = 2
LINES = 16  # rows of pixels that are looked at, spread over the screen
REST = 0.5  # seconds without a change after which a picture is the final one


class _Image(ctypes.Structure):
    _fields_ = [("width", ctypes.c_int), ("height", ctypes.c_int), ("xoffset", ctypes.c_int), ("format", ctypes.c_int),
                ("data", ctypes.c_void_p)]


class Screen:
    """Xvfb with a window manager, gone when the block ends."""

    def __init__(self, width, height):
        self.width, self.height = width, height
        self.x11 = ctypes.CDLL("libX11.so.6")
        self.test = ctypes.CDLL("libXtst.so.6")
        self.x11.XOpenDisplay.restype = ctypes.c_void_p
        self.x11.XGetImage.restype = ctypes.POINTER(_Image)
        self.x11.XGetImage.argtypes = [ctypes.c_void_p, ctypes.c_ulong] + [ctypes.c_int] * 2 + [ctypes.c_uint] * 2 + [
            ctypes.c_ulong, ctypes.c_int]
        self.x11.XStringToKeysym.restype = ctypes.c_ulong
        self.x11.XDefaultRootWindow.restype = ctypes.c_ulong

    def __enter__(self):
        reading, writing = os.pipe()
        self.server = subprocess.Popen(
            ["Xvfb", "-displayfd", str(writing), "-screen", "0", f"{self.width}x{self.height}x24", "-nolisten", "tcp",
             "-noreset"], pass_fds=[writing], stderr=subprocess.DEVNULL)
        os.close(writing)
        with os.fdopen(reading) as pipe:
            self.name = ":" + pipe.readline().strip()
        self.environment = dict(os.environ, DISPLAY=self.name, QT_QPA_PLATFORM="xcb", QT_SCALE_FACTOR="1")
        self.manager = subprocess.Popen(["openbox"], env=self.environment, stderr=subprocess.DEVNULL)
        self.display = ctypes.c_void_p(self.x11.XOpenDisplay(self.name.encode()))
        self.root = self.x11.XDefaultRootWindow(self.display)
        time.sleep(1)
        return self

    def __exit__(self, *_):
        for process in (self.manager, self.server):
            process.terminate()
            process.wait()

    def rows(self, top, count):
        """The pixels of some rows of the screen, as bytes."""
        image = self.x11.XGetImage(self.display, self.root, 0, top, self.width, count, ALL_PLANES, Z_PIXMAP)
        pixels = ctypes.string_at(image.contents.data, self.width * count * 4)
        self.x11.XDestroyImage(image)
        return pixels

    def look(self):
        """Rows from all over the screen."""
        return [self.rows((2 * i + 1) * self.height // (2 * LINES), 1) for i in range(LINES)]

    def shows(self, *colours):
        """Whether each of the colours (blue, green, red) is seen in the middle of the screen."""
        picture = self.rows(self.height // 2, 1) + self.rows(self.height // 3, 1)
        return all(bytes(colour) in picture for colour in colours)

    def point(self, x, y):
        self.test.XTestFakeMotionEvent(self.display, -1, int(x), int(y), 0)
        self.x11.XSync(self.display, 0)

    def press(self, button):
        """Presses a button and lets it go; 4 and 5 are the wheel."""
        for down in (1, 0):
            self.test.XTestFakeButtonEvent(self.display, button, down, 0)
        self.x11.XSync(self.display, 0)

    def key(self, *names):
        """Presses keys together, as "Control_L", "d"."""
        codes = [self.x11.XKeysymToKeycode(self.display, ctypes.c_ulong(self.x11.XStringToKeysym(name.encode())))
                 for name in names]
        for down, order in ((1, codes), (0, codes[::-1])):
            for code in order:
                self.test.XTestFakeKeyEvent(self.display, code, down, 0)
        self.x11.XSync(self.display, 0)

    def type(self, text):
        """Types lower case letters and blanks, and takes them."""
        for letter in text:
            self.key("space" if letter == " " else letter)
            time.sleep(0.02)
        self.key("Return")

    def rest(self, seconds=REST, limit=20):
        """Waits until the picture stays the same."""
        before, since, end = self.look(), time.monotonic(), time.monotonic() + limit
        while time.monotonic() - since < seconds and time.monotonic() < end:
            time.sleep(0.02)
            now = self.look()
            if now != before:
                before, since = now, time.monotonic()

    def changes(self, act, limit=10):
        """Milliseconds from an act to the first and to the last change of the picture; nothing without one."""
        before = self.look()
        start = time.monotonic()
        act()
        first = last = None
        while time.monotonic() - (last or start + limit - REST) < REST:
            now = self.look()
            if now != before:
                before, last = now, time.monotonic()
                first = first or last
        return None if first is None else ((first - start) * 1000, (last - start) * 1000)
