#!/usr/bin/env python3
"""Makes HTML pages, with their pictures, of the manual and of the pages for callers. The example files
of the latter live once, in docs/esempi: a line that is nothing but a link to one becomes its content.
   pagine.py FOLDER [TITLE_END]   writes them into the folder
   pagine.py --controlla          writes them into a folder of its own and checks them
Run it with the system's own Python, which has Debian's python3-markdown."""
import html
import html.parser
import itertools
import pathlib
import re
import shutil
import struct
import sys
import tempfile
import urllib.parse

import markdown
from markdown.extensions.toc import slugify_unicode

QUI = pathlib.Path(__file__).resolve().parent
BASE = QUI.parent.parent
# Source, language, name in the other pages, heading of the table of contents.
PAGINE = [("manuale.md", "it", "Manuale d'uso", "Indice"),
          ("interfaccia_it.md", "it", "Formati dei file", "Indice"),
          ("interfaccia.md", "en", "File formats (English)", "Contents")]
TRADOTTE = ("interfaccia.md", "interfaccia_it.md")  # the same page in two languages
ESEMPIO = re.compile(r"^\[[^\]]*\]\(esempi/([^)]*)\)$", re.M)
ANNIDATA = re.compile(r"^ {2,3}(?=[-*] |\d+\. )", re.M)  # an item of a list inside a list
COLONNA = re.compile(r"(?<!\\)\|")
STRETTA = 390  # pixels of a narrow window, in which every table still has its whole width

MODELLO = """<!DOCTYPE html>
<html lang="{lingua}">
<head>
<meta charset="utf-8">
<meta name="viewport" content="width=device-width, initial-scale=1">
<title>{titolo}</title>
<style>
{stile}</style>
</head>
<body>
<nav>
<p class="pagine">{pagine}</p>
<p class="indice">{indice}</p>
{toc}
</nav>
<main>
{corpo}
</main>
</body>
</html>
"""


def prepara(testo):
    """The page with its example files, and with inner lists as deep as the converter asks for."""
    def contenuto(m):
        righe = (BASE / "docs" / "esempi" / m[1]).read_text("cp1252").splitlines()
        return "\n".join("    " + riga for riga in righe)
    return ANNIDATA.sub("    ", ESEMPIO.sub(contenuto, testo))


def misure(immagine):
    """Width and height of a PNG file, and whether its colours are reduced to a palette."""
    byte = immagine.read_bytes()
    larghezza, altezza, _, colori = struct.unpack(">IIBB", byte[16:26])
    return larghezza, altezza, colori == 3


def figura(m):
    """A picture at its own size, which a narrow window shows smaller and opens whole."""
    testo, file = m[1], m[2]
    larghezza, altezza, _ = misure(BASE / "docs" / file)
    return (f'<figure><a href="{file}"><img alt="{testo}" src="{file}" width="{larghezza}" '
            f'height="{altezza}"></a><figcaption>{testo}</figcaption></figure>')


def ritocca(corpo):
    """What Markdown cannot say: captions, tables without a head, links between the pages."""
    # The row of links under the title: the page has a table of contents of its own.
    corpo = re.sub(r"(</h1>\s*)<p>(?:<a href=\"#[^\"]*\">[^<]*</a>[\s·]*)+</p>", r"\1", corpo)
    corpo = re.sub(r'<p><img alt="([^"]*)" src="([^"]*)" ?/?></p>', figura, corpo)
    corpo = re.sub(r"<table>\s*<thead>\s*<tr>\s*(?:<th>\s*</th>\s*)+</tr>\s*</thead>",
                   '<table class="legenda">', corpo)
    corpo = re.sub(r"<table.*?</table>", r'<div class="tabella">\g<0></div>', corpo, flags=re.S)
    # Inside a code span of a table the sign of the columns stays escaped.
    corpo = re.sub(r"<code>[^<]*</code>", lambda m: m[0].replace("\\|", "|"), corpo)
    return re.sub(r'href="([\w.]+)\.md(#[^"]*)?"', r'href="\1.html\2"', corpo)


def collegamenti(questa):
    """The pages by name, the present one without a link."""
    return "<br>".join(f"<b>{nome}</b>" if sorgente == questa else
                       f'<a href="{sorgente.replace(".md", ".html")}">{nome}</a>'
                       for sorgente, _, nome, _ in PAGINE)


def scrivi(cartella, coda):
    stile = (QUI / "stile.css").read_text("utf-8")
    (cartella / "img").mkdir(parents=True, exist_ok=True)
    for sorgente, lingua, _, indice in PAGINE:
        testo = (BASE / "docs" / sorgente).read_text("utf-8")
        md = markdown.Markdown(
            extensions=["tables", "fenced_code", "sane_lists", "toc"],
            extension_configs={"toc": {"slugify": slugify_unicode, "toc_depth": "2-3"}})
        corpo = ritocca(md.convert(prepara(testo)))
        titolo = html.escape(re.match(r"# (.*)", testo)[1] + coda)
        pagina = MODELLO.format(lingua=lingua, titolo=titolo, stile=stile, indice=indice,
                                pagine=collegamenti(sorgente), toc=md.toc, corpo=corpo)
        with open(cartella / sorgente.replace(".md", ".html"), "w", encoding="utf-8",
                  newline="\n") as file:
            file.write(pagina)
        for immagine in re.findall(r'src="(img/[^"]*)"', corpo):
            shutil.copyfile(BASE / "docs" / immagine, cartella / immagine)


class Lettore(html.parser.HTMLParser):
    """Gathers a page's anchors, what it refers to, its running text, its lists and tables."""

    def __init__(self, testo):
        super().__init__()
        self.ancore, self.riferimenti, self.testo, self.codice = set(), [], "", 0
        self.immagini, self.profondita, self.annidate = [], 0, 0
        self.tabelle, self.cella = [], None  # of each table its rows, of each row its cells
        self.feed(testo[testo.index("<main>"):])
        principale = self.profondita, self.annidate
        self.feed(testo[:testo.index("<main>")])
        self.profondita, self.annidate = principale

    def handle_starttag(self, tag, attrs):
        attributi = dict(attrs)
        self.codice += tag in ("code", "style")
        self.profondita += tag in ("ul", "ol")
        self.annidate += tag == "li" and self.profondita > 1
        if "id" in attributi:
            self.ancore.add(attributi["id"])
        self.riferimenti += [attributi[a] for a in ("href", "src") if a in attributi]
        if tag == "img":
            self.immagini.append(attributi)
        if tag == "table":
            self.tabelle.append([])
        if tag == "tr":
            self.tabelle[-1].append([])
        if tag in ("td", "th"):
            self.cella = ""

    def handle_endtag(self, tag):
        self.codice -= tag in ("code", "style")
        self.profondita -= tag in ("ul", "ol")
        if tag in ("td", "th"):
            self.tabelle[-1][-1].append(self.cella)
            self.cella = None

    def handle_data(self, dati):
        if not self.codice:
            self.testo += dati
        if self.cella is None:
            return
        if not self.codice:
            self.cella += dati
        elif not self.tabelle[-1][-1]:  # code of a first column never breaks
            self.cella += dati.replace(" ", "_")

    def larghezza_tabelle(self):
        """Of each table the pixels that it needs at least: the longest word of each column (code
        behind the first breaks anywhere) at eight pixels a letter, the edges of its cells, the page's margins."""
        for righe in self.tabelle:
            parole = [max((len(parola) for cella in colonna for parola in cella.split()), default=0)
                      for colonna in zip(*righe)]
            yield righe[0], 8 * sum(parole) + 13 * len(parole) + 32


def errori_rimandi(nome, pagina, cartella, lette):
    for riferimento in pagina.riferimenti:
        parti = urllib.parse.urlsplit(riferimento)
        file = urllib.parse.unquote(parti.path) or nome
        ancora = urllib.parse.unquote(parti.fragment)
        if parti.scheme or parti.netloc:
            yield f"{riferimento} is not in the package"
        elif not (cartella / file).exists():
            yield f"{riferimento} does not exist"
        elif ancora and ancora not in lette[file].ancore:
            yield f"{riferimento} has no such heading"


def errori_pagina(pagina, sorgente, cartella):
    for resto in re.findall(r"\*\*|`|\]\(|^ *\|.*|^ *- .*", pagina.testo, re.M):
        yield f"Markdown that was not converted: {resto}"
    attese = len(ANNIDATA.findall(sorgente))
    if pagina.annidate != attese:
        yield f"{pagina.annidate} items in inner lists, {attese} in the source"
    for immagine in pagina.immagini:
        larghezza, altezza, ridotta = misure(cartella / immagine["src"])
        if (immagine.get("width"), immagine.get("height")) != (str(larghezza), str(altezza)):
            yield f"{immagine['src']} is not shown at its own size"
        if ridotta:
            yield f"{immagine['src']} has lost colours to a palette"
    for testa, larghezza in pagina.larghezza_tabelle():
        if larghezza > STRETTA:
            yield f"table {testa} needs {larghezza} pixels, a narrow window has {STRETTA}"


def ossatura(pagina):
    """What a page in another language has as well: heading levels, rows of tables by their columns,
    items of lists by their depth, example files, and what stands there as it is written in a file."""
    for riga in (BASE / "docs" / pagina).read_text("utf-8").splitlines():
        if riga.startswith("#"):
            yield riga.split()[0]
        elif riga.startswith("|"):
            yield f"row of {len(COLONNA.findall(riga)) - 1} columns"
        elif voce := re.match(r" *(- |\d+\. )", riga):
            yield voce[0]
        elif esempio := ESEMPIO.match(riga):
            yield esempio[1]
        yield from re.findall(r"`[^`]+`", riga)


def errori_traduzione():
    ossa = [list(ossatura(pagina)) for pagina in TRADOTTE]
    for n, (una, altra) in enumerate(itertools.zip_longest(*ossa)):
        if una != altra:
            yield f"{' and '.join(TRADOTTE)} differ after {ossa[0][max(n - 3, 0):n]}: {una}, {altra}"
            return


def errori(cartella):
    lette = {p.name: Lettore(p.read_text("utf-8")) for p in sorted(cartella.glob("*.html"))}
    for nome, pagina in lette.items():
        sorgente = (BASE / "docs" / nome.replace(".html", ".md")).read_text("utf-8")
        for difetto in errori_rimandi(nome, pagina, cartella, lette):
            yield f"{nome}: {difetto}"
        for difetto in errori_pagina(pagina, sorgente, cartella):
            yield f"{nome}: {difetto}"
    yield from errori_traduzione()
    inclusi = set(ESEMPIO.findall((BASE / "docs" / TRADOTTE[0]).read_text("utf-8")))
    for file in sorted(p.name for p in (BASE / "docs" / "esempi").iterdir()):
        if file not in inclusi:
            yield f"docs/esempi/{file} stands in no page"


def controlla():
    with tempfile.TemporaryDirectory() as provvisoria:
        cartella = pathlib.Path(provvisoria) / "manuale"
        scrivi(cartella, "")
        # The package holds the samples beside the manual.
        (cartella.parent / "samples").symlink_to(BASE / "samples")
        trovati = list(errori(cartella))
    print("\n".join(trovati) or f"{len(PAGINE)} pages: links, pictures, lists, tables, languages")
    return 1 if trovati else 0


if __name__ == "__main__":
    if len(sys.argv) < 2:
        sys.exit(__doc__)
    if sys.argv[1] == "--controlla":
        sys.exit(controlla())
    scrivi(pathlib.Path(sys.argv[1]), " - " + sys.argv[2] if len(sys.argv) > 2 else "")
