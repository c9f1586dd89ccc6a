#!/usr/bin/env python3
"""Makes a large legacy database out of the example one, to measure on.

    grow_legacy.py atolye.mdb big.mdb

The pages of the order tables are copied until there are 20,000 orders and
200,000 lines, with their counters moved on; rows that moved to another page
point to that page's copy. The indexes are left as they are: a file for
reading tables from end to end, and for nothing else.
"""
import struct
import sys

PAGE = 4096
ROW_COUNT, ROW_OFFSETS = 12, 14  # places on a data page
TABLE_ROWS, TABLE_MAP, TABLE_COLUMNS = 16, 55, 45  # places in a table's definition
POINTER, PLACE = 0x4000, 0x1FFF  # mark of a row that moved; its place on the page


class Table:
    """The table that has these fields; the counters among them are moved on."""

    def __init__(self, pages, counters, other):
        names = [name.encode("utf-16le") for name in counters + [other]]
        self.number = next(n for n, page in enumerate(pages)
                           if page[0] == 2 and all(name in page for name in names))
        definition = pages[self.number]
        self.pages = [n for n, page in enumerate(pages)
                      if page[0] == 1 and struct.unpack_from("<I", page, 4)[0] == self.number]
        self.offsets = [self.fixed_offset(definition, name) for name in counters]
        self.rows = struct.unpack_from("<I", definition, TABLE_ROWS)[0]

    @staticmethod
    def fixed_offset(definition, name):
        count = struct.unpack_from("<H", definition, TABLE_COLUMNS)[0]
        indexes = struct.unpack_from("<I", definition, 51)[0]
        first = 63 + 12 * indexes
        at = first + 25 * count
        for column in range(count):
            length = struct.unpack_from("<H", definition, at)[0]
            if definition[at + 2:at + 2 + length].decode("utf-16le") == name:
                return struct.unpack_from("<H", definition, first + 25 * column + 21)[0]
            at += 2 + length
        raise KeyError(name)

    def copy(self, pages, step):
        """Adds a copy of all rows, the counters moved on by step."""
        places = {old: len(pages) + n for n, old in enumerate(self.pages)}
        for old in self.pages:
            page = bytearray(pages[old])
            for row in range(struct.unpack_from("<H", page, ROW_COUNT)[0]):
                start = struct.unpack_from("<H", page, ROW_OFFSETS + 2 * row)[0]
                place = start & PLACE
                if start & 0xC000 == POINTER:
                    target = struct.unpack_from("<I", page, place)[0]
                    struct.pack_into("<I", page, place, places[target >> 8] << 8 | target & 0xFF)
                elif start & POINTER == 0:
                    for offset in self.offsets:
                        value = struct.unpack_from("<i", page, place + 2 + offset)[0]
                        struct.pack_into("<i", page, place + 2 + offset, value + step)
            pages.append(page)
        return list(places.values())

    def grow(self, pages, rows):
        own = list(self.pages)
        copies = -(-rows // self.rows)
        for copy in range(1, copies):
            own += self.copy(pages, copy * 10000)
        self.write_map(pages, own)
        struct.pack_into("<I", pages[self.number], TABLE_ROWS, copies * self.rows)
        return copies * self.rows

    def write_map(self, pages, own):
        """Which pages are the table's: a bit each, on pages of their own."""
        bits_per_page = (PAGE - 4) * 8
        entries = []
        for first in range(0, max(own) + 1, bits_per_page):
            bits = bytearray(PAGE)
            bits[0:2] = b"\x05\x01"
            for number in own:
                if first <= number < first + bits_per_page:
                    bits[4 + (number - first) // 8] |= 1 << (number - first) % 8
            entries.append(len(pages))
            pages.append(bits)
        row = b"\x01" + b"".join(struct.pack("<I", entry) for entry in entries)
        row += bytes(69 - len(row))
        page = bytearray(PAGE)
        page[0:2] = b"\x01\x01"
        struct.pack_into("<HH", page, ROW_COUNT, 1, PAGE - len(row))
        page[PAGE - len(row):] = row
        struct.pack_into("<I", pages[self.number], TABLE_MAP, len(pages) << 8)
        pages.append(page)


def main(source, target):
    data = open(source, "rb").read()
    pages = [bytearray(data[at:at + PAGE]) for at in range(0, len(data), PAGE)]
    headers = Table(pages, ["Sipnum"], "SipTrh")
    lines = Table(pages, ["SipnumD", "Dotosayi"], "SipSatir")
    print("orders", headers.grow(pages, 20000), "lines", lines.grow(pages, 200000))
    with open(target, "wb") as out:
        for page in pages:
            out.write(page)


if __name__ == "__main__":
    main(*sys.argv[1:3])
