#!/usr/bin/env python3
"""Writes the sample program sets into samples/. Run it again after a change here; the sets are
committed, so nobody needs Python to use them."""

from pathlib import Path

FOLDER = Path(__file__).resolve().parent.parent / "samples"

# base name, first character of the .hdn file, first image address, image length in bytes,
# revision, configuration codes A, B, C (or None), title
SETS = [
    ("PUMP1", "2", 0x5000, 1536, 3, None, "Cooling water pumps 1 and 2 with standby"),
    ("LINE2", "6", 0x2000, 1024, 12, None, "Bottling line 2 - conveyor and reject gate"),
    ("PRESS", "D", 0x4000, 2048, 27, None, "Forming press with two-hand start - 40 strokes a minute"),
    ("PANEL", "A", 0x2000, 768, 1, (1, 0, 2), "Operator panel of the packing cell"),
]
LCF_BOARD = {"A": "E"}

# Limit switch sets: base name, first character of the .hdn file, digits of a position, constant of a
# channel's header line, number of channels, scale, the rest of the .PCF line's digits, and for the
# channels that are used, by their number, a label and the setpoints (ON, OFF). ON above OFF wraps
# round through 0.
PLS_SETS = [
    ("CAM1", "E", 4, "1:000:000:000", 16, 1000, "1" "012" "012" "008" "000" "000" "025" "000" "000", {
        0: ("GLUE GUN LEFT", [(120, 260), (620, 760)]),
        1: ("GLUE GUN RIGHT", [(125, 265), (625, 765)]),
        2: ("REJECT GATE, LINE 2", [(410, 455)]),
        3: ("CLAMP", [(930, 80)]),
        5: ("AIR BLAST", [(300, 310), (340, 350), (380, 390), (980, 5)]),
        8: ("LAMP", [(0, 500)]),
    }),
    ("CAM2", "7", 3, "1:00:00:00", 16, 360, "3" "012" "180" "005" "020" "090" "270" "0040" "0120", {
        0: ("BRAKE", [(170, 190)]),
        1: ("CLUTCH", [(10, 165)]),
        2: ("FEED ROLLS", [(200, 340)]),
        4: ("TOP STOP", [(350, 10)]),
        9: ("PART EJECT", [(30, 45), (75, 90), (120, 135)]),
        15: ("SPEED WINDOW", [(0, 359)]),
    }),
]

# What PUMP1 calls its variables: section by section (flags, memory, X inputs, Y outputs), each
# variable with a short name, a description, and the names of some of its bits.
PUMP1_NAMES = [
    [(64, "RUN", "Pumps are released", {}), (65, "STANDBY", "Standby pump runs", {})],
    [
        (100, "TENTHS", "Run time in tenths of a second", {}),
        (102, "SECONDS", "Run time in seconds", {}),
        (104, "FLOW", "Flow in litres a minute", {}),
        (106, "PRESSURE", "Pressure after the pumps in millibar", {}),
        (110, "VOLUME", "Volume since the last reset in litres", {}),
        (114, "VALVES", "Positions of the eight valves", {}),
        (115, "STATE", "State of the sequence", {3: ("DRAIN", "Drain valve is open")}),
        (520, "LIMIT", "First of the limit values", {}),
    ],
    [],
    [(1, "PUMP1", "Outputs of pump 1", {}), (10, "LEVELS", "Level switches of the basin", {})],
]
PUMP1_TABLE = ["W100", "W104", "D110", "B114", "B115.3", "F64", "Y1", "I10", "B520"]
PUMP1_LIMITS = ["100", "2500", "7"]


def mark_hex(byte):
    return "".join(chr(ord("0") + digit) for digit in divmod(byte, 16))


def image(length, seed):
    """Bytes of no particular program: groups of code, a table of zeros and a text at the end."""
    state = seed
    data = bytearray()
    while len(data) < length - 96:
        state = (state * 1103515245 + 12345) % 2**31
        data += bytes([0x60 + state // 65536 % 24, state // 256 % 256, 0x20 + state // 2**24 % 4])
    data = data[: length - 96] + bytes(64)
    return bytes(data + f"sample image {length} bytes".encode().ljust(32))


def record(address, data, kind=0):
    body = bytes([len(data), address // 256, address % 256, kind]) + data
    return ":" + (body + bytes([-sum(body) % 256])).hex().upper()


def write(name, *lines):
    text = "".join(line + "\r\n" for line in lines)
    (FOLDER / name).write_bytes(text.encode("cp1252"))


def write_set(base, board, start, length, revision, config, title):
    data = image(length, start + length)
    records = [record(start + i, data[i : i + 16]) for i in range(0, length, 16)]
    write(f"{base}.hdn", board)
    write(f"{base}.LTL", title)
    write(f"{base}.rev", base + mark_hex(sum(data) % 256) + mark_hex(revision))
    write(f"{base}.HEX", *records, record(0, b"", 1))
    if config:
        a, b, c = config
        write(f"{base}.lcf", f"{LCF_BOARD[board]}{'0' * 34}{a}00{b}{c}000%")


def write_pls_set(base, board, digits, constant, channels, scale, rest, used):
    """The set of a limit switch board: the model, the configuration, the setpoints."""
    write(f"{base}.hdn", board)
    write(f"{base}.PCF", f"{channels:02}{scale:0{digits}}{rest}{'0' * 16}%")
    lines = [f":{scale:0{digits}}", f":{0:0{digits}}"]
    for channel in range(channels):
        label, setpoints = used.get(channel, ("", []))
        lines.append(f":{channel:02o}{constant}{label:21}")
        lines += (f"|{on:0{digits}}{off:0{digits}}" for on, off in setpoints)
    write(f"{base}.CHL", *lines, "%")


def name_lines(kind):
    """Lines of a name file; kind 0 gives the short names, 1 the descriptions."""
    for section, variables in enumerate(PUMP1_NAMES):
        if section:
            yield "&"
        for number, *texts, bits in variables:
            yield f"{number:04}{texts[kind]}"
            if bits:
                yield "/"
                yield from (f"{bit}{names[kind]}" for bit, names in bits.items())
                yield "#"


def main():
    FOLDER.mkdir(exist_ok=True)
    for row in SETS:
        write_set(*row)
    for row in PLS_SETS:
        write_pls_set(*row)
    write("PUMP1.nam", *name_lines(0))
    write("PUMP1.doc", *name_lines(1))
    write("PUMP1.tbl", " 50 ", *PUMP1_TABLE, "")
    write("LIMITS.txt", *PUMP1_LIMITS)


main()
