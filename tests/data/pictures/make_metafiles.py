#!/usr/bin/env python3
"""make_metafiles.py [FOLDER]: writes door.wmf and door.emf, which show the same: a door with a handle, a sign and a word,
60 x 80 pixels at 96 an inch."""
import struct, sys
out = sys.argv[1] if len(sys.argv) > 1 else "."

def wmf():
    recs = []
    def rec(fn, *words):
        body = struct.pack('<%dh' % len(words), *words)
        recs.append(struct.pack('<IH', 3 + len(words), fn) + body)
    def raw(fn, body):
        if len(body) % 2: body += b'\0'
        recs.append(struct.pack('<IH', 3 + len(body) // 2, fn) + body)
    rec(0x0103, 8)                       # SetMapMode anisotropic
    rec(0x020B, 0, 0)                    # SetWindowOrg
    rec(0x020C, 800, 600)                # SetWindowExt y, x
    raw(0x02FC, struct.pack('<HIH', 0, 0x00806040, 0))  # brush 0
    raw(0x02FA, struct.pack('<HhhI', 0, 20, 0, 0x00302010))  # pen 1
    raw(0x02FC, struct.pack('<HIH', 0, 0x000000FF, 0))  # brush 2
    rec(0x012D, 0); rec(0x012D, 1)
    rec(0x041B, 800, 500, 0, 100)        # Rectangle b r t l
    rec(0x012D, 2)
    rec(0x0418, 450, 450, 400, 400)      # Ellipse
    raw(0x0324, struct.pack('<h6h', 3, 200, 100, 400, 100, 300, 300))  # Polygon
    raw(0x02FB, struct.pack('<hhhhhBBBBBBBB', -80, 0, 0, 0, 400, 0, 0, 0, 0, 0, 0, 0, 0) + b'Arial\0')
    rec(0x012D, 3)
    raw(0x0521, struct.pack('<h', 4) + b'Door' + struct.pack('<hh', 500, 200))
    recs.append(struct.pack('<IH', 3, 0))
    body = b''.join(recs)
    words = 9 + len(body) // 2
    header = struct.pack('<HHHIHIH', 1, 9, 0x300, words, 4, max(len(r) for r in recs) // 2, 0)
    place = struct.pack('<IHhhhhHI', 0x9AC6CDD7, 0, 0, 0, 600, 800, 960, 0)
    check = 0
    for w in struct.unpack('<10H', place): check ^= w
    return place + struct.pack('<H', check) + header + body

def emf():
    recs = []
    def rec(t, body): recs.append(struct.pack('<II', t, 8 + len(body)) + body)
    rec(17, struct.pack('<I', 8))                       # SetMapMode
    rec(10, struct.pack('<ii', 0, 0)); rec(9, struct.pack('<ii', 600, 800))     # window
    rec(12, struct.pack('<ii', 0, 0)); rec(11, struct.pack('<ii', 60, 80))      # viewport
    rec(39, struct.pack('<IIII', 1, 0, 0x00806040, 0))  # brush
    rec(38, struct.pack('<IIiiI', 2, 0, 20, 0, 0x00302010))
    rec(39, struct.pack('<IIII', 3, 0, 0x000000FF, 0))
    rec(37, struct.pack('<I', 1)); rec(37, struct.pack('<I', 2))
    rec(43, struct.pack('<iiii', 100, 0, 500, 800))     # Rectangle
    rec(37, struct.pack('<I', 3))
    rec(42, struct.pack('<iiii', 400, 400, 450, 450))   # Ellipse
    rec(3, struct.pack('<iiii', 200, 100, 400, 300) + struct.pack('<I', 3) + struct.pack('<6i', 200, 100, 400, 100, 300, 300))
    font = struct.pack('<iiiii8B', -80, 0, 0, 0, 400, 0, 0, 0, 0, 0, 0, 0, 0) + 'Arial'.encode('utf-16le').ljust(64, b'\0')
    rec(82, struct.pack('<I', 4) + font.ljust(320, b'\0'))
    rec(37, struct.pack('<I', 4))
    text = 'Door'.encode('utf-16le')
    emrtext = struct.pack('<iiIII', 200, 500, 4, 76, 0) + struct.pack('<iiiiI', 0, 0, 0, 0, 76 + len(text))
    rec(84, struct.pack('<iiii', 0, 0, 60, 80) + struct.pack('<Iff', 1, 1.0, 1.0) + emrtext + text + struct.pack('<4i', 50, 50, 50, 50))
    rec(14, struct.pack('<III', 0, 16, 20))
    body = b''.join(recs)
    head = struct.pack('<iiii', 0, 0, 59, 79) + struct.pack('<iiii', 0, 0, 1588, 2117)
    head += struct.pack('<IIIIHHIII', 0x464D4520, 0x10000, 108 + len(body), len(recs) + 1, 5, 0, 0, 0, 0)
    head += struct.pack('<iiii', 1920, 1080, 508, 286) + struct.pack('<III', 0, 0, 0) + struct.pack('<ii', 508000, 286000)
    return struct.pack('<II', 1, 8 + len(head)) + head + body

open(out + '/door.wmf', 'wb').write(wmf())
open(out + '/door.emf', 'wb').write(emf())
