#!/usr/bin/env python3
"""Serves the sample maker's server on 127.0.0.1 only. Start Brevaro with
BREVARO_SERVER=http://127.0.0.1:8765 to see its banners and directories."""
import functools
import http.server
import os
import subprocess
import sys

HERE = os.path.dirname(os.path.abspath(__file__))


def main():
    port = int(sys.argv[1]) if len(sys.argv) > 1 else 8765
    subprocess.run([sys.executable, os.path.join(HERE, "make_demo.py")], check=True)
    # The maker's pages end in .php, as on the real server, which sends them as HTML.
    http.server.SimpleHTTPRequestHandler.extensions_map[".php"] = "text/html"
    handler = functools.partial(http.server.SimpleHTTPRequestHandler, directory=os.path.join(HERE, "www"))
    server = http.server.ThreadingHTTPServer(("127.0.0.1", port), handler)
    print("Serving the demo maker's server at http://127.0.0.1:%d (Ctrl+C stops it)" % port)
    print("Run: BREVARO_SERVER=http://127.0.0.1:%d ./dev run" % port)
    try:
        server.serve_forever()
    except KeyboardInterrupt:
        pass


if __name__ == "__main__":
    main()
