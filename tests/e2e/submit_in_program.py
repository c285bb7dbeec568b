#!/usr/bin/env python3
"""Submit in the program as a user starts it: the built brevaro executable runs under a
private Xvfb and D-Bus session, Submit is pressed through the accessibility tree, and the
submission page served here on 127.0.0.1 reports the inputs the browser filled.

Usage: submit_in_program.py BREVARO BREVARO_CLI"""
import http.server
import json
import os
import shutil
import signal
import subprocess
import sys
import tempfile
import threading
import time

PAD_URL = "http://www.example.com/notes/pad.xml"
PAGE = """<html><body><h1>Submission page</h1>
<form><input name=padfile size=60><input name=User><input type=password name=Password></form>
<script>
// Reports the inputs once the browser has filled the PAD file address.
var sent = false;
setInterval(function () {
  var pad = document.getElementsByName('padfile')[0].value;
  if (sent || pad === '') return;
  sent = true;
  var values = {};
  for (var input of document.querySelectorAll('input')) values[input.name] = input.value;
  var request = new XMLHttpRequest();
  request.open('POST', '/report');
  request.send(JSON.stringify(values));
}, 200);
</script></body></html>"""

reports = []


class Handler(http.server.BaseHTTPRequestHandler):
    sites = b""

    def do_GET(self):
        if self.path.startswith("/unsignedpadfile.php"):
            body = PAGE.encode()
        elif self.path.startswith("/pad/SharewareSites/"):
            body = Handler.sites
        else:
            self.send_error(404)
            return
        self.send_response(200)
        self.send_header("Content-Type", "text/html; charset=utf-8")
        self.send_header("Content-Length", str(len(body)))
        self.end_headers()
        self.wfile.write(body)

    def do_POST(self):
        length = int(self.headers.get("Content-Length", 0))
        reports.append(json.loads(self.rfile.read(length) or b"{}"))
        open(os.environ["BREVARO_TEST_DONE"], "w").close()
        self.send_response(204)
        self.end_headers()

    def log_message(self, *args):
        pass


def run(cmd, **kw):
    return subprocess.run(cmd, check=True, capture_output=True, **kw)


def end_leftovers(folder):
    """Ends what the desktop's services started for the run and left running (the
    accessibility bus outlives the session bus); each names the run's folder."""
    for pid in filter(str.isdigit, os.listdir("/proc")):
        try:
            with open("/proc/%s/cmdline" % pid, "rb") as f:
                if folder.encode() in f.read():
                    os.kill(int(pid), signal.SIGTERM)
        except OSError:
            pass


def main():
    brevaro, cli = sys.argv[1], sys.argv[2]
    work = tempfile.mkdtemp(prefix="brevaro-submit-")
    try:
        home = os.path.join(work, "home")
        run([cli, "--home", home, "new-company", "Northwind Tools"])
        run([cli, "--home", home, "new-program", "-c", "1", "Harbour Notes"])
        run([cli, "--home", home, "set", "-c", "1", "-p", "1", "ApplicationXMLFileURL=" + PAD_URL])
        Handler.sites = run([cli, "encipher-sites"],
                            input=b"Pinecone Downloads|http://127.0.0.1/dir/1.html\n").stdout
        server = http.server.ThreadingHTTPServer(("127.0.0.1", 0), Handler)
        threading.Thread(target=server.serve_forever, daemon=True).start()
        port = server.server_address[1]

        runtime = os.path.join(work, "runtime")
        os.mkdir(runtime, 0o700)
        env = {k: v for k, v in os.environ.items()
               if not k.startswith("QTWEBENGINE_") and k not in ("QT_QPA_PLATFORM", "DISPLAY")}
        env.update(BREVARO_SERVER="http://127.0.0.1:%d" % port, XDG_RUNTIME_DIR=runtime,
                   QT_LINUX_ACCESSIBILITY_ALWAYS_ON="1", QT_ACCESSIBILITY="1",
                   BREVARO_BROWSER_LOG=os.path.join(work, "stderr.txt"),
                   BREVARO_TEST_DONE=os.path.join(work, "reported"))
        os.environ["BREVARO_TEST_DONE"] = env["BREVARO_TEST_DONE"]
        display = ":%d" % (100 + os.getpid() % 400)
        xvfb = subprocess.Popen(["Xvfb", display, "-screen", "0", "1280x1024x24", "-nolisten", "tcp"],
                                stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        try:
            time.sleep(1)
            env["DISPLAY"] = display
            driver = os.path.join(os.path.dirname(os.path.abspath(__file__)), "press_submit.py")
            status = subprocess.run(["dbus-run-session", "--", "/usr/bin/python3", driver, brevaro, home],
                                    env=env, timeout=150).returncode
        finally:
            xvfb.kill()
            end_leftovers(work)
        if status != 0:
            print("the program could not be driven (status %d)" % status)
            return 1
        if not reports:
            print("no filled inputs came back from the submission page")
            return 1
        values = reports[0]
        if values.get("padfile") != PAD_URL:
            print("the PAD file input holds %r, not %r" % (values.get("padfile"), PAD_URL))
            return 1
        print("1 passed, 0 failed")
        return 0
    finally:
        shutil.rmtree(work, ignore_errors=True)


if __name__ == "__main__":
    sys.exit(main())
