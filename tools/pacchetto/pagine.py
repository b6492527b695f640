#!/usr/bin/env python3
"""Makes HTML pages, with their pictures, of the manual and of the page for callers.
   pagine.py FOLDER [TITLE_END]   writes them into the folder
   pagine.py --controlla          writes them into a folder of its own and checks them
Run it with the system's own Python, which has Debian's python3-markdown."""
import html
import html.parser
import pathlib
import re
import shutil
import sys
import tempfile
import urllib.parse

import markdown
from markdown.extensions.toc import slugify_unicode

QUI = pathlib.Path(__file__).resolve().parent
BASE = QUI.parent.parent
# Source, language, name in the other pages, heading of the table of contents.
PAGINE = [("manuale.md", "it", "Manuale d'uso", "Indice"),
          ("interfaccia.md", "en", "Formati dei file (in inglese)", "Contents")]

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


def ritocca(corpo):
    """What Markdown cannot say: captions, tables without a head, links between the pages."""
    # The row of links under the title: the page has a table of contents of its own.
    corpo = re.sub(r"(</h1>\s*)<p>(?:<a href=\"#[^\"]*\">[^<]*</a>[\s·]*)+</p>", r"\1", corpo)
    corpo = re.sub(r'<p>(<img alt="([^"]*)" src="[^"]*" ?/?>)</p>',
                   r"<figure>\1<figcaption>\2</figcaption></figure>", corpo)
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
        corpo = ritocca(md.convert(testo))
        titolo = html.escape(re.match(r"# (.*)", testo)[1] + coda)
        pagina = MODELLO.format(lingua=lingua, titolo=titolo, stile=stile, indice=indice,
                                pagine=collegamenti(sorgente), toc=md.toc, corpo=corpo)
        with open(cartella / sorgente.replace(".md", ".html"), "w", encoding="utf-8",
                  newline="\n") as file:
            file.write(pagina)
        for immagine in re.findall(r'src="(img/[^"]*)"', corpo):
            shutil.copyfile(BASE / "docs" / immagine, cartella / immagine)


class Lettore(html.parser.HTMLParser):
    """Gathers a page's anchors, what it refers to, and its running text."""

    def __init__(self, testo):
        super().__init__()
        self.ancore, self.riferimenti, self.testo, self.codice = set(), [], "", 0
        self.feed(testo)

    def handle_starttag(self, tag, attrs):
        attributi = dict(attrs)
        self.codice += tag in ("code", "style")
        if "id" in attributi:
            self.ancore.add(attributi["id"])
        self.riferimenti += [attributi[a] for a in ("href", "src") if a in attributi]

    def handle_endtag(self, tag):
        self.codice -= tag in ("code", "style")

    def handle_data(self, dati):
        if not self.codice:
            self.testo += dati


def errori(cartella):
    lette = {p.name: Lettore(p.read_text("utf-8")) for p in sorted(cartella.glob("*.html"))}
    for nome, pagina in lette.items():
        for riferimento in pagina.riferimenti:
            parti = urllib.parse.urlsplit(riferimento)
            file = urllib.parse.unquote(parti.path) or nome
            ancora = urllib.parse.unquote(parti.fragment)
            if parti.scheme or parti.netloc:
                yield f"{nome}: {riferimento} is not in the package"
            elif not (cartella / file).exists():
                yield f"{nome}: {riferimento} does not exist"
            elif ancora and ancora not in lette[file].ancore:
                yield f"{nome}: {riferimento} has no such heading"
        for resto in re.findall(r"\*\*|`|\]\(|^ *\|.*|^ *- .*", pagina.testo, re.M):
            yield f"{nome}: Markdown that was not converted: {resto}"


def controlla():
    with tempfile.TemporaryDirectory() as provvisoria:
        cartella = pathlib.Path(provvisoria) / "manuale"
        scrivi(cartella, "")
        # The package holds the samples beside the manual.
        (cartella.parent / "samples").symlink_to(BASE / "samples")
        trovati = list(errori(cartella))
    print("\n".join(trovati) or f"{len(PAGINE)} pages, every link and picture found")
    return 1 if trovati else 0


if __name__ == "__main__":
    if len(sys.argv) < 2:
        sys.exit(__doc__)
    if sys.argv[1] == "--controlla":
        sys.exit(controlla())
    scrivi(pathlib.Path(sys.argv[1]), " - " + sys.argv[2] if len(sys.argv) > 2 else "")
