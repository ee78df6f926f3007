#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""What a person waits for, in milliseconds by the clock, driven in the real client on a screen of its own: the start to
a drawn chart, a step of the wheel over 200 routes, six ports calculated, a panel of 200 pinned voyages opened.

Usage: bench/waits/waits.py [BUILD-FOLDER]; a release build, at rest. Medians of the runs, and the worst."""
import pathlib
import shutil
import sqlite3
import statistics
import subprocess
import sys
import tempfile
import time

from screen import Screen

ROUTES = 200
LAND, SEA = (0xD9, 0xEB, 0xF2), (0xF0, 0xE2, 0xCF)  # blue, green, red of the light chart
PORTS = ["Rotterdam", "Singapore", "Shanghai", "Houston", "Santos", "Durban", "Sydney", "Yokohama", "Mumbai", "Valparaiso"]
TABLE = ["rotterdam", "algeciras", "port said", "jeddah", "colombo", "singapore"]
VOYAGES_BUTTON = (40, 18)


def tell(what, times):
    print(f"{what:44} median {statistics.median(times):4.0f} ms, worst {max(times):4.0f} ms of {len(times)}", flush=True)


class Client:
    """The client over the whole screen, ended when the block ends."""

    def __init__(self, screen, program, folder):
        self.screen, self.command = screen, [program, "--data", folder, "--theme", "light", "--lang", "en-US"]

    def __enter__(self):
        start = time.monotonic()
        self.process = subprocess.Popen(self.command, env=self.screen.environment, stderr=subprocess.DEVNULL)
        while not self.screen.shows(LAND, SEA):
            if self.process.poll() is not None or time.monotonic() - start > 30:
                raise SystemExit("waits: the client shows no chart")
            time.sleep(0.002)
        self.start = (time.monotonic() - start) * 1000
        self.screen.rest()
        window = subprocess.check_output(["xdotool", "search", "--onlyvisible", "--name", "^Seaplan$"], text=True,
                                         env=self.screen.environment).split()[0]
        subprocess.run(["xdotool", "windowmove", window, "0", "0", "windowsize", window, str(self.screen.width),
                        str(self.screen.height)], env=self.screen.environment, check=True)
        self.screen.rest()
        return self

    def __exit__(self, *_):
        self.process.terminate()
        self.process.wait()
        self.screen.rest()


def pin_many(program, folder):
    """Plans some voyages and keeps each many times over, pinned."""
    for i, (here, there) in enumerate(zip(PORTS, PORTS[1:] + PORTS[:1])):
        subprocess.run([program, "plan", here, there, "--speed", "14", "--save", f"Liner/{here} {i}", "--data", folder,
                        "--server", "embedded"], check=True, stdout=subprocess.DEVNULL)
    data = sqlite3.connect(pathlib.Path(folder) / "voyages.db")
    data.execute("update voyages set vr = 1")
    keys = data.execute("select v.vi, b.pbi from voyages v join position_books b on b.vi = v.vi").fetchall()
    columns = {table: [row[1] for row in data.execute(f"pragma table_info({table})")]
               for table in ("voyages", "port_calls", "position_books", "book_rows")}
    free = 5_000_000
    for copy in range(len(keys), ROUTES):
        vi, pbi = keys[copy % len(keys)]
        for table, names in columns.items():
            new = {"vi": str(free + 2 * copy), "pbi": str(free + 2 * copy + 1), "vn": f"Copy {copy}"}
            taken = ", ".join(f"'{new[name]}'" if name in new else name for name in names)
            where = f"pbi = '{pbi}'" if table == "book_rows" else f"vi = '{vi}'"
            data.execute(f"insert into {table} select {taken} from {table} where {where}")
    data.execute(f"update next_id set value = {free + 4 * ROUTES}")
    data.commit()
    data.close()


def starts(screen, program, folder):
    times = []
    for _ in range(7):
        with Client(screen, program, folder) as client:
            times.append(client.start)
    tell("start to a drawn chart", times)


def calculate(screen, program, folder):
    first, final = [], []
    for _ in range(5):
        with Client(screen, program, folder):
            screen.point(800, 980)
            screen.press(1)
            screen.key("Control_L", "d")
            screen.rest()
            where = subprocess.check_output(["xdotool", "search", "--onlyvisible", "--name", "^Port distances$"], text=True,
                                            env=screen.environment).split()[0]
            subprocess.run(["xdotool", "windowmove", where, "24", "640"], env=screen.environment, check=True)
            screen.rest()
            screen.point(24 + 103, 640 + 84)
            screen.press(1)
            for port in TABLE:
                screen.type(port)
            screen.rest()
            seen = screen.changes(lambda: screen.key("F9"))
            if seen is None:
                raise SystemExit("waits: F9 changed nothing")
            first.append(seen[0])
            final.append(seen[1])
    tell("Calculate of 6 ports to the first change", first)
    tell("Calculate of 6 ports to the final picture", final)


def many(screen, program, folder):
    opened, drawn, wheel, ended = [], [], [], []
    for _ in range(3):
        with Client(screen, program, folder):
            screen.point(*VOYAGES_BUTTON)
            seen = screen.changes(lambda: screen.press(1))
            opened.append(seen[0])
            drawn.append(seen[1])
            screen.point(1100, 420)
            screen.rest()
            for i in range(10):
                seen = screen.changes(lambda button=4 + i % 2: screen.press(button))
                wheel.append(seen[0])
                ended.append(seen[1])
    tell(f"panel of {ROUTES} pinned voyages, first change", opened)
    tell(f"panel of {ROUTES} pinned voyages, final picture", drawn)
    tell(f"wheel over {ROUTES} routes, first change", wheel)
    tell(f"wheel over {ROUTES} routes, end of the motion", ended)


def main():
    build = pathlib.Path(sys.argv[1] if len(sys.argv) > 1 else "build/release")
    program = str(build / "bin" / "tarvik")
    folder = tempfile.mkdtemp(prefix="seaplan-waits.")
    try:
        with Screen(1600, 1000) as screen:
            starts(screen, program, folder + "/empty")
            calculate(screen, program, folder + "/empty")
            pin_many(program, folder + "/many")
            many(screen, program, folder + "/many")
    finally:
        shutil.rmtree(folder, ignore_errors=True)


if __name__ == "__main__":
    main()
