"""Specimen of the stroke font as a PNG picture, drawn with one-pixel lines as the program draws them."""

import struct
import zlib

MARGINE = 30
PROVE = (
    "A12 M3 S5 O2 C1 N1234 V7",
    "125 - Trave filo A piano 2",
    "Perché città più è così",
    "0123456789 0O 1lI 5S 8B",
    "ABCDEFGHIJKLMNOPQRSTUVWXYZ",
    "abcdefghijklmnopqrstuvwxyz",
)
MISURE = (8, 10, 12, 16, 24, 40)
PER_RIGA = 23


class Foglio:
    """A black and white sheet that grows downwards as it is written on."""

    def __init__(self, larga):
        self.larga = larga
        self.righe = []

    def Punto(self, x, y):
        while y >= len(self.righe):
            self.righe.append(bytearray(self.larga))
        if 0 <= x < self.larga and y >= 0:
            self.righe[y][x] = 1

    def Linea(self, x1, y1, x2, y2):
        dx, dy = abs(x2 - x1), -abs(y2 - y1)
        px, py = (1 if x1 < x2 else -1), (1 if y1 < y2 else -1)
        errore = dx + dy
        while True:
            self.Punto(x1, y1)
            if (x1, y1) == (x2, y2):
                return
            doppio = 2 * errore
            if doppio >= dy:
                errore += dy
                x1 += px
            if doppio <= dx:
                errore += dx
                y1 += py

    def Testo(self, glifi, spazio, testo, x, y, base, altezza):
        """Text with the left end of its baseline in (x, y), pixels, y downwards."""
        sx, sy = (1 - spazio / 100) * base / 99, altezza / 69
        for k, c in enumerate(testo):
            for x1, y1, x2, y2 in glifi.get(c, ()):
                self.Linea(
                    round(x + k * base + x1 * sx),
                    round(y - (y1 - 30) * sy),
                    round(x + k * base + x2 * sx),
                    round(y - (y2 - 30) * sy),
                )

    def Salva(self, percorso, fondo=0):
        """One bit per pixel, ink on paper; `fondo` blank rows are left at the bottom."""
        self.righe += [bytearray(self.larga) for _ in range(fondo)]
        dati = b"".join(b"\0" + self.Bit(r) for r in self.righe)

        def Blocco(tipo, corpo):
            return struct.pack(">I", len(corpo)) + tipo + corpo + struct.pack(">I", zlib.crc32(tipo + corpo))

        testa = struct.pack(">IIBBBBB", self.larga, len(self.righe), 1, 3, 0, 0, 0)
        colori = bytes((255, 255, 255, 16, 32, 72))
        percorso.write_bytes(
            b"\x89PNG\r\n\x1a\n"
            + Blocco(b"IHDR", testa)
            + Blocco(b"PLTE", colori)
            + Blocco(b"IDAT", zlib.compress(dati, 9))
            + Blocco(b"IEND", b"")
        )

    def Bit(self, riga):
        piena = riga + bytearray(-len(riga) % 8)
        return bytes(sum(piena[k + b] << (7 - b) for b in range(8)) for k in range(0, len(piena), 8))


def Disegna(glifi, spazio, percorso):
    """Every character at 80 pixels; then sample texts, with base = height and with base = 0.7 height."""
    foglio = Foglio(2 * MARGINE + PER_RIGA * 80)
    tutti = sorted(glifi, key=lambda c: c.encode("cp1252"))
    y = MARGINE - 20
    for k in range(0, len(tutti), PER_RIGA):
        y += 104
        foglio.Testo(glifi, spazio, "".join(tutti[k : k + PER_RIGA]), MARGINE, y - 24, 80, 80)
    y += MARGINE
    foglio.Linea(MARGINE, y, foglio.larga - MARGINE, y)
    stretto = foglio.larga - MARGINE - round(0.7 * MISURE[-1] * max(map(len, PROVE)))
    for misura in MISURE:
        y += 12
        for prova in PROVE:
            y += round(misura * 1.5)
            foglio.Testo(glifi, spazio, prova, MARGINE, y, misura, misura)
            foglio.Testo(glifi, spazio, prova, stretto, y, 0.7 * misura, misura)
    foglio.Salva(percorso, MARGINE)
