#!/usr/bin/env python3
"""Makes the stroke font `font.001` from the readable source `caratteri.txt`.

    genera_font.py                     write font.001 beside this program
    genera_font.py --controlla         check the source and the font.001 that is there
    genera_font.py --anteprima F.png   draw a specimen, with the lines the program draws

Only the Python 3 standard library is used. README.md describes the source format.
"""

import functools
import math
import pathlib
import sys

sys.dont_write_bytecode = True  # no __pycache__ among the resources
import anteprima  # noqa: E402

QUI = pathlib.Path(__file__).resolve().parent
SORGENTE = QUI / "caratteri.txt"
FONT = QUI / "font.001"

SPAZIO = 10  # first line of the font: a cell is then 99 / 0.90 = 110 units wide, its middle is x = 55
MAX_TRATTI = 50
CENTRO = (55, 30)  # fixed point when a shape is scaled: middle of the cell, baseline
ESPONENTE = 2.2  # arcs are superellipses: 2 = ellipse, more = fuller corners

# Pixels of one font unit in a text of base = height = 80 pixels: curves are judged as the eye sees them.
PIXEL = (80 * (1 - SPAZIO / 100) / 99, 80 / 69)

PESO_SCARTO = 1.0  # distance between chord and curve, squared
PESO_SPIGOLO = 0.25  # corner between two chords, squared, for each pixel of size
PESO_TRATTO = 0.35  # each segment


# ---- Source -------------------------------------------------------------------------------------


def Righe(testo):
    """Definitions of the source as (name, list of tokens); indented lines continue the one before."""
    voci = []
    for numero, riga in enumerate(testo.splitlines(), 1):
        if not riga.strip() or riga.startswith("//"):
            continue
        if riga[0] == " ":
            voci[-1][1].extend(riga.split())
            continue
        nome, *resto = riga.split()
        if not resto or resto[0] != "=":
            raise ValueError(f"riga {numero}: manca ' = ' dopo il nome")
        # An invisible character is named by its code.
        voci.append((chr(int(nome[2:], 16)) if nome.startswith("U+") else nome, resto[1:]))
    return voci


def Numeri(testo):
    return [float(n) for n in testo.split(",")]


def Richiamo(pezzo):
    """'&name@dx,dy*sx,sy' as (name, shift, scale in percent); shift and scale may be left out."""
    # The name may itself be '@' or '*': its first character is never a separator.
    resto = pezzo[2:]
    resto, _, scala = resto.partition("*")
    resto, _, sposta = resto.partition("@")
    return (
        pezzo[1] + resto,
        Numeri(sposta) if sposta else [0, 0],
        Numeri(scala) if scala else [100, 100],
    )


def Elemento(pezzo):
    """One drawing token: ('p', x, y), ('h'|'v', x, y), ('c', six numbers), ('o', six numbers)."""
    if pezzo[:2] in ("h:", "v:", "c:", "o:"):
        return (pezzo[0], *Numeri(pezzo[2:].replace(":", ",")))
    return ("p", *Numeri(pezzo))


def Trasforma(elemento, sposta, scala):
    """Moves an element by `sposta` after scaling it about CENTRO; a negative scale mirrors."""
    sx, sy = scala[0] / 100, scala[1] / 100
    tipo, *n = elemento
    punti = [
        c
        for x, y in zip(n[0::2], n[1::2])
        for c in (CENTRO[0] + (x - CENTRO[0]) * sx + sposta[0], CENTRO[1] + (y - CENTRO[1]) * sy + sposta[1])
    ]
    if tipo != "o":
        return (tipo, *punti)
    a1, a2 = n[4:]
    if sx < 0:
        a1, a2 = 180 - a1, 180 - a2
    if sy < 0:
        a1, a2 = -a1, -a2
    return ("o", *punti[:2], n[2] * abs(sx), n[3] * abs(sy), a1, a2)


def LeggiSorgente(testo):
    """Every name of the source with its strokes, each a list of elements; references are resolved."""
    forme = {}
    for nome, pezzi in Righe(testo):
        tratti = [[]]
        for pezzo in pezzi:
            if pezzo == ";":
                tratti.append([])
            elif pezzo[0] == "&":
                altro, sposta, scala = Richiamo(pezzo)
                if altro not in forme:
                    raise ValueError(f"{nome}: '{altro}' non definito prima")
                for tratto in forme[altro]:
                    tratti.append([Trasforma(e, sposta, scala) for e in tratto])
                tratti.append([])
            else:
                tratti[-1].append(Elemento(pezzo))
        if nome in forme:
            raise ValueError(f"{nome}: definito due volte")
        forme[nome] = [t for t in tratti if t]
    return forme


# ---- Curves to segments ---------------------------------------------------------------------------


def Arrotonda(v):
    return math.floor(v + 0.5)


def InPixel(p):
    return (p[0] * PIXEL[0], p[1] * PIXEL[1])


def DistanzaCorda(p, a, b):
    lx, ly = b[0] - a[0], b[1] - a[1]
    lunga = math.hypot(lx, ly)
    if lunga == 0:
        return math.dist(p, a)
    return abs((p[0] - a[0]) * ly - (p[1] - a[1]) * lx) / lunga


def Piega(a, b):
    """Angle between two directions, radians, without sign."""
    return abs(math.atan2(a[0] * b[1] - a[1] * b[0], a[0] * b[0] + a[1] * b[1]))


def Candidati(curva):
    """Grid points close to the curve, in their order along it, as (point, index of nearest sample)."""
    pixel = [InPixel(p) for p in curva]
    vicini = {
        (gx, gy)
        for x, y in curva
        for gx in (math.floor(x), math.floor(x) + 1)
        for gy in (math.floor(y), math.floor(y) + 1)
    }
    capi = [tuple(Arrotonda(v) for v in curva[k]) for k in (0, -1)]
    nodi = []
    for g in vicini - set(capi):
        distanza, k = min((math.dist(InPixel(g), p), k) for k, p in enumerate(pixel))
        if distanza < 0.42 and 0 < k < len(curva) - 1:
            nodi.append((g, k))
    nodi.sort(key=lambda n: (n[1], n[0]))
    return [(capi[0], 0), *nodi, (capi[1], len(curva) - 1)]


def Corde(nodi, curva):
    """Chords worth using between candidates: (i, j) with direction and squared distance from the curve."""
    pixel = [InPixel(p) for p in curva]
    punti = [InPixel(g) for g, _ in nodi]
    corde = {}
    for i, (_, ki) in enumerate(nodi):
        for j in range(i + 1, len(nodi)):
            kj = nodi[j][1]
            if kj <= ki:
                continue
            scarto = max(DistanzaCorda(pixel[k], punti[i], punti[j]) for k in range(ki, kj + 1))
            if scarto < 1.2:
                verso = (punti[j][0] - punti[i][0], punti[j][1] - punti[i][1])
                corde[(i, j)] = (verso, scarto * scarto)
    return corde


def Spezzata(curva, peso):
    """Best polyline on grid points along a sampled curve: few segments, close, with even corners."""
    nodi = Candidati(curva)
    corde = Corde(nodi, curva)
    pixel = [InPixel(p) for p in curva]
    spigolo = PESO_SPIGOLO * (math.dist(pixel[0], pixel[-1]) + 10)
    fine = len(nodi) - 1
    # A curve's end joins another curve with the same tangent: half of that corner is ours.
    inizio = (pixel[1][0] - pixel[0][0], pixel[1][1] - pixel[0][1])
    uscita = (pixel[-1][0] - pixel[-2][0], pixel[-1][1] - pixel[-2][1])
    costo = {}
    for (i, j), (verso, scarto) in sorted(corde.items()):
        passo = PESO_SCARTO * scarto + peso
        if i == 0:
            meglio = (2 * spigolo * Piega(inizio, verso) ** 2, None)
        else:
            arrivi = [
                (costo[(h, i)][0] + spigolo * Piega(corde[(h, i)][0], verso) ** 2, (h, i))
                for h in range(i)
                if (h, i) in costo
            ]
            if not arrivi:
                continue
            meglio = min(arrivi)
        if j == fine:
            passo += 2 * spigolo * Piega(verso, uscita) ** 2
        costo[(i, j)] = (meglio[0] + passo, meglio[1])
    arrivo = min((c for c in costo if c[1] == fine), key=lambda c: costo[c][0], default=None)
    if arrivo is None:
        return [nodi[0][0], nodi[-1][0]]
    indici = [fine]
    while arrivo is not None:
        indici.append(arrivo[0])
        arrivo = costo[arrivo][1]
    return [nodi[i][0] for i in reversed(indici)]


def SulQuarto(rx, ry, gradi):
    """Point of the superellipse's first quarter; the ends are exact."""
    a = math.radians(gradi)
    c, s = (abs(math.cos(a)), abs(math.sin(a)))
    c, s = (0 if c < 1e-9 else c, 0 if s < 1e-9 else s)
    return (rx * c ** (2 / ESPONENTE), ry * s ** (2 / ESPONENTE))


@functools.lru_cache(maxsize=None)
def Quarto(rx, ry, a1, a2, peso):
    """Polyline of the piece from a1 to a2 (0 <= a1 < a2 <= 90) of a quarter centred in the origin.

    Mirrored pieces share this one result, so round letters are exactly symmetrical.
    """
    return Spezzata([SulQuarto(rx, ry, a1 + (a2 - a1) * k / 90) for k in range(91)], peso)


def Arco(cx, cy, rx, ry, a1, a2, peso):
    """Polyline of an arc, from the angle a1 to a2 in degrees; centre and radii are moved to the grid."""
    cx, cy, rx, ry = (Arrotonda(v) for v in (cx, cy, rx, ry))
    if a2 < a1:
        return Arco(cx, cy, rx, ry, a2, a1, peso)[::-1]
    punti = []
    da = a1
    while da < a2 - 1e-9:
        quadrante = math.floor(da / 90 + 1e-9)
        a = min(a2, 90 * (quadrante + 1))
        u, v = da - 90 * quadrante, a - 90 * quadrante
        if quadrante % 2:
            pezzo = Quarto(rx, ry, 90 - v, 90 - u, peso)[::-1]
        else:
            pezzo = Quarto(rx, ry, u, v, peso)
        mx = -1 if quadrante % 4 in (1, 2) else 1
        my = -1 if quadrante % 4 in (2, 3) else 1
        punti += [(cx + mx * x, cy + my * y) for x, y in pezzo]
        da = a
    return punti


def ArcoTra(da, a, orizzontale, peso):
    """Quarter arc between two grid points, leaving horizontally or vertically."""
    cx, cy = (da[0], a[1]) if orizzontale else (a[0], da[1])
    rx, ry = abs(a[0] - da[0]), abs(a[1] - da[1])
    pezzo = Quarto(rx, ry, 0, 90, peso)
    mx = 1 if a[0] + da[0] > 2 * cx else -1
    my = 1 if a[1] + da[1] > 2 * cy else -1
    punti = [(cx + mx * x, cy + my * y) for x, y in pezzo]
    return punti[::-1] if orizzontale else punti


@functools.lru_cache(maxsize=None)
def Bezier(p0, p1, p2, p3, peso):
    def Su(t):
        u = 1 - t
        return tuple(u**3 * a + 3 * u * u * t * b + 3 * u * t * t * c + t**3 * d for a, b, c, d in zip(p0, p1, p2, p3))

    return Spezzata([Su(k / 90) for k in range(91)], peso)


def Percorso(tratto, peso):
    """Grid points of one stroke."""
    punti = []
    for tipo, *n in tratto:
        if tipo == "o":
            punti += Arco(*n, peso)
            continue
        p = (Arrotonda(n[-2]), Arrotonda(n[-1]))
        if tipo == "p":
            punti.append(p)
        elif not punti:
            raise ValueError("una curva non puo' cominciare un tratto")
        elif tipo == "c":
            punti += Bezier(punti[-1], tuple(n[0:2]), tuple(n[2:4]), p, peso)
        else:
            punti += ArcoTra(punti[-1], p, tipo == "h", peso)
    return [p for k, p in enumerate(punti) if k == 0 or p != punti[k - 1]]


def UnisciAllineati(punti):
    """Drops the points that lie on the straight way between their neighbours."""
    fuori = punti[:1]
    for k in range(1, len(punti)):
        if len(fuori) > 1:
            (ax, ay), (bx, by), (cx, cy) = fuori[-2], fuori[-1], punti[k]
            storto = (bx - ax) * (cy - by) - (by - ay) * (cx - bx)
            avanti = (bx - ax) * (cx - bx) + (by - ay) * (cy - by)
            if storto == 0 and avanti > 0:
                fuori.pop()
        fuori.append(punti[k])
    return fuori


def Segmenti(tratti):
    """Segments (x1, y1, x2, y2) of a glyph; curves get coarser until the glyph fits its line."""
    peso = PESO_TRATTO
    while True:
        segmenti = []
        for tratto in tratti:
            punti = UnisciAllineati(Percorso(tratto, peso))
            for a, b in zip(punti, punti[1:]):
                if (*a, *b) not in segmenti and (*b, *a) not in segmenti:
                    segmenti.append((*a, *b))
        if len(segmenti) <= MAX_TRATTI or peso > 100:
            return segmenti
        peso *= 1.3


def GeneraGlifi():
    """Character -> segments, for every one-character name of the source."""
    forme = LeggiSorgente(SORGENTE.read_text(encoding="utf-8"))
    return {nome: Segmenti(tratti) for nome, tratti in forme.items() if len(nome) == 1}


# ---- Output -----------------------------------------------------------------------------------------


def Attesi():
    """Every printable character of Windows-1252; the two blanks only advance and have no line."""
    codici = [c for c in range(33, 256) if c not in (0x7F, 0x81, 0x8D, 0x8F, 0x90, 0x9D, 0xA0)]
    return {bytes([c]).decode("cp1252") for c in codici}


def Controlla(glifi):
    """Faults of the glyphs, one text each."""
    guai = [f"'{c}' manca" for c in sorted(Attesi() - set(glifi))]
    guai += [f"'{c}' non e' un carattere stampabile Windows-1252" for c in sorted(set(glifi) - Attesi())]
    for c, segmenti in glifi.items():
        if not 0 < len(segmenti) <= MAX_TRATTI:
            guai.append(f"'{c}' ha {len(segmenti)} segmenti")
        if any(not 0 <= v <= 99 for s in segmenti for v in s):
            guai.append(f"'{c}' esce da 0..99")
        if any(s[:2] == s[2:] for s in segmenti):
            guai.append(f"'{c}' ha un segmento nullo")
    return guai


def Contenuto(glifi):
    """The bytes of font.001."""
    righe = [str(SPAZIO).encode()]
    for c in sorted(glifi, key=lambda g: g.encode("cp1252")):
        righe.append(c.encode("cp1252") + "".join(f"{v:02d}" for s in glifi[c] for v in s).encode())
    return b"".join(r + b"\r\n" for r in righe)


def Principale(argomenti):
    glifi = GeneraGlifi()
    guai = Controlla(glifi)
    if argomenti == ["--controlla"] and not guai and (not FONT.exists() or FONT.read_bytes() != Contenuto(glifi)):
        guai.append("font.001 non corrisponde a caratteri.txt: rigenerarlo")
    if guai:
        print("\n".join(guai), file=sys.stderr)
        return 1
    if not argomenti:
        FONT.write_bytes(Contenuto(glifi))
    elif len(argomenti) == 2 and argomenti[0] == "--anteprima":
        anteprima.Disegna(glifi, SPAZIO, pathlib.Path(argomenti[1]))
    elif argomenti != ["--controlla"]:
        print(__doc__, file=sys.stderr)
        return 2
    segmenti = [len(s) for s in glifi.values()]
    print(f"{len(glifi)} caratteri, {sum(segmenti)} segmenti, al massimo {max(segmenti)} per carattere")
    return 0


if __name__ == "__main__":
    sys.exit(Principale(sys.argv[1:]))
