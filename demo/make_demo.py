#!/usr/bin/env python3
"""Builds the sample maker's server under demo/www: animated banner images drawn here,
the banner data file, and the enciphered list of made-up download directories."""
import datetime
import os
import struct
import subprocess
import sys

HERE = os.path.dirname(os.path.abspath(__file__))
WWW = os.path.join(HERE, "www")


def lzw(indices, min_code_size):
    """GIF flavour of LZW: variable code width, clear code first, end code last."""
    clear, end = 1 << min_code_size, (1 << min_code_size) + 1
    table = {(i,): i for i in range(clear)}
    width, next_code = min_code_size + 1, end + 1
    out, bits, nbits = bytearray(), 0, 0

    def emit(code):
        nonlocal bits, nbits
        bits |= code << nbits
        nbits += width
        while nbits >= 8:
            out.append(bits & 0xFF)
            bits >>= 8
            nbits -= 8

    emit(clear)
    run = (indices[0],)
    for px in indices[1:]:
        grown = run + (px,)
        if grown in table:
            run = grown
            continue
        emit(table[run])
        if next_code < 4096:
            table[grown] = next_code
            next_code += 1
            if next_code > (1 << width) and width < 12:
                width += 1
        else:
            emit(clear)
            table = {(i,): i for i in range(clear)}
            width, next_code = min_code_size + 1, end + 1
        run = (px,)
    emit(table[run])
    emit(end)
    if nbits:
        out.append(bits & 0xFF)
    return bytes(out)


FONT = {  # 3x5 capitals for the banner captions
    "A": "010101111101101", "B": "110101110101110", "C": "011100100100011", "D": "110101101101110",
    "E": "111100110100111", "F": "111100110100100", "G": "011100101101011", "H": "101101111101101",
    "I": "111010010010111", "K": "101101110101101", "L": "100100100100111", "M": "101111111101101",
    "N": "110101101101101", "O": "010101101101010", "P": "110101110100100", "R": "110101110101101",
    "S": "011100010001110", "T": "111010010010010", "U": "101101101101111", "V": "101101101101010",
    "W": "101101111111101", "Y": "101101010010010", " ": "000000000000000", "!": "010010010000010",
}


def banner_gif(path, text, colours, width=234, height=60, frames=6):
    palette = colours + [(0, 0, 0)] * (8 - len(colours))
    header = b"GIF89a" + struct.pack("<HHBBB", width, height, 0xF2, 0, 0)
    header += b"".join(bytes(c) for c in palette)
    header += b"\x21\xFF\x0BNETSCAPE2.0\x03\x01\x00\x00\x00"  # loop forever
    body = b""
    for f in range(frames):
        pixels = [[0] * width for _ in range(height)]
        for y in range(height):  # a moving stripe behind the text
            for x in range(width):
                if (x + y + f * 12) % 48 < 6:
                    pixels[y][x] = 1
        scale, x0 = 3, 10 + (f % 3) * 2
        for i, ch in enumerate(text.upper()):
            glyph = FONT.get(ch, FONT[" "])
            for gy in range(5):
                for gx in range(3):
                    if glyph[gy * 3 + gx] == "1":
                        for dy in range(scale):
                            for dx in range(scale):
                                x, y = x0 + i * 4 * scale + gx * scale + dx, 22 + gy * scale + dy
                                if x < width and y < height:
                                    pixels[y][x] = 2 + (f % 2)
        flat = [p for row in pixels for p in row]
        data = lzw(flat, 3)
        blocks = b"".join(bytes([len(data[i:i + 255])]) + data[i:i + 255] for i in range(0, len(data), 255))
        body += b"\x21\xF9\x04\x04" + struct.pack("<H", 25) + b"\x00\x00"  # 0.25 s a frame
        body += b"\x2C" + struct.pack("<HHHHB", 0, 0, width, height, 0) + b"\x03" + blocks + b"\x00"
    with open(path, "wb") as out:
        out.write(header + body + b"\x3B")


def main():
    cli = sys.argv[1] if len(sys.argv) > 1 else os.path.join(HERE, "..", "build", "bin", "brevaro-cli")
    share = os.path.join(WWW, "pad", "share")
    sites = os.path.join(WWW, "pad", "SharewareSites")
    os.makedirs(share, exist_ok=True)
    os.makedirs(sites, exist_ok=True)
    banners = [
        ("fastpad.gif", "Fast PAD tips", [(255, 255, 225), (230, 230, 200), (0, 0, 153), (204, 0, 0)], 8),
        ("submit.gif", "Submit now!", [(225, 240, 255), (200, 215, 240), (0, 90, 0), (0, 0, 153)], 6),
        ("keywords.gif", "Better keywords", [(255, 240, 240), (240, 210, 210), (120, 0, 120), (0, 0, 0)], 5),
    ]
    today = datetime.date.today()
    lines = ["# Sample banner data for the demo server", ""]
    for name, caption, colours, seconds in banners:
        banner_gif(os.path.join(share, name), caption, colours)
        lines.append("ADD|%s|%s|http://127.0.0.1:8765/unsignedpadfile.php|%s|%s|%d" % (
            caption, name, today - datetime.timedelta(days=30), today + datetime.timedelta(days=365), seconds))
    lines.append("DELETE|An old campaign|expired.gif|http://127.0.0.1:8765/|2003-01-01|2003-12-31|5")
    with open(os.path.join(share, "data.txt"), "w", newline="") as out:
        out.write("\n".join(lines) + "\n")  # bare line feeds, as many servers send them
    directories = "".join("%s|http://127.0.0.1:8765/dir/%d.html\n" % (name, i) for i, name in enumerate([
        "Northwind Software Archive", "Pinecone Downloads", "Harbor Freeware Index",
        "Bluebird Shareware Shelf", "Summit Utilities Library", "Copperfield Program Base",
    ], start=1))
    enciphered = subprocess.run([cli, "encipher-sites"], input=directories.encode(), check=True,
                                capture_output=True).stdout
    with open(os.path.join(sites, "sharewaresites_cryptated.txt"), "wb") as out:
        out.write(enciphered)
    os.makedirs(os.path.join(WWW, "dir"), exist_ok=True)
    for i in range(1, 7):
        with open(os.path.join(WWW, "dir", "%d.html" % i), "w") as out:
            out.write("<html><body><h1>Directory %d</h1><form><input name=padfile size=60> "
                      "<input name=User> <input type=password name=Password></form></body></html>\n" % i)
    with open(os.path.join(WWW, "notes.html"), "w") as out:
        out.write("<html><head><title>Harbour Notes</title></head><body><h1>Harbour Notes</h1>"
                  "<p>Harbour Notes is an outliner for notes, journals and lists. Notes sync between "
                  "your machines, notes are searchable as you type, and journals keep notes by "
                  "date. Outliner keys move notes, lists and journals; sync keeps notes safe.</p>"
                  "<p>Download the outliner for notes and journals today.</p></body></html>\n")
    with open(os.path.join(WWW, "unsignedpadfile.php"), "w") as out:
        out.write("<html><body><h1>Quorin submission page (demo)</h1><form><input name=padfile size=60>"
                  "</form></body></html>\n")


if __name__ == "__main__":
    main()
