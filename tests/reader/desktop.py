"""Runs a journey on a desktop of its own.

    desktop.py JOURNEY PROGRAM DELIVERED

A virtual screen, a session bus and the bus of assistive tools belong to this run alone, and all its
folders are fresh. JOURNEY is a script beside this one; it gets the other arguments.
"""

import os
import subprocess
import sys
import tempfile
from pathlib import Path

# A desktop that the caller works on must not be seen from within.
FOREIGN = ("AT_SPI_BUS_ADDRESS", "DBUS_SESSION_BUS_ADDRESS", "DBUS_SESSION_BUS_PID", "WAYLAND_DISPLAY",
           "XAUTHORITY", "QT_ACCESSIBILITY", "NO_AT_BRIDGE")
FOLDERS = ("HOME", "XDG_RUNTIME_DIR", "XDG_DATA_HOME", "XDG_CONFIG_HOME", "XDG_CACHE_HOME")
SCREEN = "1280x900x24"


def fresh_environment(root):
    environment = {name: value for name, value in os.environ.items() if name not in FOREIGN}
    for name in FOLDERS:
        folder = root / name.lower()
        folder.mkdir(mode=0o700)
        environment[name] = str(folder)
    environment.update(QT_QPA_PLATFORM="xcb", LC_ALL="C.UTF-8", XDG_SESSION_TYPE="x11")
    return environment


def start_screen(log):
    """The screen chooses a free number and writes it once it takes connections."""
    reading, writing = os.pipe()
    server = subprocess.Popen(
        ["setpriv", "--pdeathsig", "TERM", "Xvfb", "-displayfd", str(writing), "-screen", "0", SCREEN,
         "-nolisten", "tcp", "-noreset"],
        pass_fds=[writing], stdout=log, stderr=log)
    os.close(writing)
    with os.fdopen(reading) as told:
        number = told.readline().strip()
    if not number:
        raise SystemExit("the virtual screen did not start")
    return server, ":" + number


def start_manager(environment, root, log):
    """The window manager gives the keyboard to windows. It writes once it works."""
    told = root / "manager"
    os.mkfifo(told)
    manager = subprocess.Popen(
        ["setpriv", "--pdeathsig", "TERM", "openbox", "--sm-disable", "--startup", f"sh -c 'echo up > {told}'"],
        env=environment, stdout=log, stderr=log)
    with open(told) as waiting:
        waiting.readline()
    return manager


def main():
    journey, *arguments = sys.argv[1:]
    script = Path(__file__).resolve().parent / journey
    with tempfile.TemporaryDirectory(prefix="reader-", dir="/tmp") as folder:
        root = Path(folder)
        environment = fresh_environment(root)
        with open(root / "screen.log", "w") as log:
            server, environment["DISPLAY"] = start_screen(log)
            manager = start_manager(environment, root, log)
            try:
                walked = subprocess.run(
                    ["dbus-run-session", "--", sys.executable, script, root / "program", *arguments],
                    env=environment)
            finally:
                for process in (manager, server):
                    process.terminate()
                    process.wait()
    return walked.returncode


if __name__ == "__main__":
    sys.exit(main())
