#!/usr/bin/env python3
"""Inside a D-Bus session: starts the accessibility bus and brevaro, presses its Submit button
through the accessibility tree, waits while the browser fills the page, then closes the
program. Usage: press_submit.py BREVARO HOME"""
import os
import subprocess
import sys
import time

import pyatspi


def find(node, role, name, depth=0):
    if node is None or depth > 40:
        return None
    try:
        if node.getRoleName() == role and (node.name or "") == name:
            return node
        for i in range(node.childCount):
            hit = find(node.getChildAtIndex(i), role, name, depth + 1)
            if hit is not None:
                return hit
    except Exception:
        pass
    return None


def application(name):
    desk = pyatspi.Registry.getDesktop(0)
    for i in range(desk.childCount):
        app = desk.getChildAtIndex(i)
        if app is not None and (app.name or "") == name:
            return app
    return None


def main():
    brevaro, home = sys.argv[1], sys.argv[2]
    bus = subprocess.Popen(["/usr/libexec/at-spi-bus-launcher", "--launch-immediately"],
                           stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
    time.sleep(1)
    log = open(os.environ["BREVARO_BROWSER_LOG"], "w")
    program = subprocess.Popen([brevaro, "--home", home], stdout=log, stderr=log)
    try:
        button = None
        for _ in range(60):
            time.sleep(0.5)
            app = application("brevaro")
            button = find(app, "push button", "Submit") if app else None
            if button is not None:
                break
        if button is None:
            print("no Submit button in the window")
            return 1
        button.queryAction().doAction(0)
        # The page reports its inputs to the test's server once they are filled.
        for _ in range(180):
            if os.path.exists(os.environ["BREVARO_TEST_DONE"]) or program.poll() is not None:
                break
            time.sleep(0.5)
        if program.poll() is not None:
            print("the program ended (status %d) after Submit" % program.returncode)
            return 1
        return 0
    finally:
        program.kill()
        bus.kill()
        log.close()
        with open(os.environ["BREVARO_BROWSER_LOG"]) as f:
            sys.stdout.write(f.read()[-3000:])


if __name__ == "__main__":
    sys.exit(main())
