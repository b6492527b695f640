"""What keeps the house in order, counted: how long a function may be, that a type's name means one
thing, where the kind of a control or of an element may be asked, who writes what the pointer is
doing. tools/controlla_strati.py runs it on every source."""
import re

RIGHE_FUNZIONE = 40  # without the rows of its tables
RIGHE_FINESTRA = 300
FINESTRA = "src/platform/win32/finestra_win32"
GESTO = "src/ui/gesto."
NOMI_GESTO = (r"PrimoAngolo|SpostaInCorso|ModoZoom|ModoSposta|FinestraAutomatica"
              r"|Shape\.Visible|LineSposta\.Visible|Disegno(?:\(\))?\.MousePointer")
ALTRE_MANI = {("src/selection/selezione.cpp", "Disegno.MousePointer")} # AzzeraInput gives the shape back
SCRITTURA = re.compile(rf"\b({NOMI_GESTO})\s*(?:[-+|&^*]?=(?!=)|\+\+|--)|(?:\+\+|--)({NOMI_GESTO})\b")
CONTROLLI, ELEMENTI = r"Tipo::\w+", r"k(?:Nodi|Aste|Gusci|ElCont|Pareti)Tipo"
SCAMBI = {"control": (CONTROLLI, 1), "element": (ELEMENTI, 2)}
MUTI = re.compile(r'//[^\n]*|/\*.*?\*/|R"(\w*)\(.*?\)\1"|"(?:\\.|[^"\\\n])*"|\'(?:\\.|[^\'\\\n])+\''
                  r"|^[ \t]*#(?:[^\n\\]|\\.)*", re.S | re.M)
CIFRE = re.compile(r"(?<=\w)'(?=\w)") # 1'000
CONTENITORE = re.compile(r"(?:^|\s)(?:namespace|class|struct|union|enum|extern)\b[^()]*$")
TIPO = re.compile(r"(?:^|\s)(?:class|struct|union|enum)\s+(\w+)(?:\s+final)?(?:\s*:[^:].*)?$", re.S)
CORPO = re.compile(r"(?:\)|\]|\b(?:const|noexcept|override|final|mutable|try)|->[^{]*|\) :.*\})$", re.S)
TABELLA = re.compile(r"(?:=|\breturn|: [\w:]*(?:<.*>)?)$")  # what a name, a function or a loop takes


def muto(testo):
    """The source without comments, texts and preprocessor; every line stays where it is."""
    def vuoto(trovato):
        return "\n" * trovato[0].count("\n") if trovato[0][0] in "/# \t" else '""' + "\n" * trovato[0].count("\n")
    return MUTI.sub(vuoto, CIFRE.sub("", testo))


class Blocco:
    """A pair of braces: what stands before it, and its lines."""

    def __init__(self, testa, inizio, fuori):
        self.testa, self.inizio, self.fuori = testa, inizio, fuori
        self.righe_dati = 0  # of the tables in it
        scoperto = fuori is None or fuori.genere == "container"
        if scoperto and CONTENITORE.search(re.sub(r"<[^<>]*>|alignas\(\w+\)", "", testa)):
            self.genere = "container"
        elif scoperto and "(" in testa and CORPO.search(testa) and not testa.endswith("="):
            self.genere = "function"
        elif re.search(r"(?:=|\breturn|[(,{]|\w|>)$", testa) and not re.search(
                r"\)$|\b(?:else|do|try|const|mutable|noexcept)$|->\s*[\w:<>*& ]+$", testa):
            self.genere = "data"
        else:
            self.genere = "code"
        self.tabella = self.genere == "data" and TABELLA.search(testa)


def blocchi(testo):
    """Every pair of braces, from the inside out, with its last line."""
    aperti, testa, riga, inizio = [], "", 1, None
    for carattere in testo:
        if carattere == "{":
            aperti.append(Blocco(testa.strip(), inizio or riga, aperti[-1] if aperti else None))
            testa, inizio = "", None
        elif carattere == "}" and aperti:
            chiuso = aperti.pop()
            yield chiuso, riga
            # What goes on after an initialiser in braces is still the same statement.
            testa, inizio = (chiuso.testa + "{}", chiuso.inizio) if chiuso.genere == "data" else ("", None)
        elif carattere == ":" and testa.strip() in ("public", "protected", "private"):
            testa, inizio = "", None
        elif carattere == ";" and testa.count("(") <= testa.count(")"):
            testa, inizio = "", None
        else:
            testa += carattere
            if inizio is None and not carattere.isspace():
                inizio = riga
        riga += carattere == "\n"


def funzioni(testo):
    """Name and lines of every function, those of its tables not counted."""
    for blocco, fine in blocchi(muto(testo)):
        righe = fine - blocco.inizio + 1
        if blocco.tabella and blocco.fuori is not None and blocco.fuori.genere != "data":
            blocco.fuori.righe_dati += righe - 1
        elif blocco.genere == "function":
            nome, _, dati = blocco.testa.partition("(")
            detto = f"{nome.split()[-1]}({' '.join(dati.split(')')[0].split())})"
            yield detto, blocco.inizio, righe - blocco.righe_dati
        elif blocco.fuori is not None:
            blocco.fuori.righe_dati += blocco.righe_dati


def tipi(testo):
    """Every type that is defined in a namespace or in a class."""
    for blocco, _ in blocchi(testo):
        nome = TIPO.search(blocco.testa)
        if nome and blocco.genere == "container":
            yield nome[1]


def rami(testo):
    """Kind (of SCAMBI) and line of every switch over the kinds of something."""
    for blocco, fine in blocchi(testo):
        if re.match(r"switch\b", blocco.testa):
            corpo = "\n".join(testo.split("\n")[blocco.inizio - 1:fine])
            for che, (nomi, _) in SCAMBI.items():
                if re.search(rf"\bcase (?:\w+::)*{nomi}:", corpo):
                    yield che, blocco.inizio


def difetti(sorgenti):
    """What is wrong in {path: text}."""
    scambi, chiedono, definiti = {che: [] for che in SCAMBI}, [], {}
    for nome, intero in sorgenti.items():
        for quale, riga, righe in funzioni(intero):
            if righe > RIGHE_FUNZIONE:
                yield f"{nome}:{riga}: {quale} has {righe} lines, more than {RIGHE_FUNZIONE}"
        if not nome.startswith("src/"):
            continue
        testo = muto(intero)
        for tipo in tipi(testo):
            definiti.setdefault(tipo, []).append(nome)
        for che, riga in rami(testo):
            scambi[che].append(f"{nome}:{riga}")
        if re.search(r"(?:\.|->)TipoControllo\(\)", testo):
            chiedono.append(nome)
        for trovato in SCRITTURA.finditer(testo):
            che = trovato[1] or trovato[2]
            if not nome.startswith(GESTO) and (nome, che) not in ALTRE_MANI:
                riga = testo.count("\n", 0, trovato.start()) + 1
                yield f"{nome}:{riga}: only {GESTO}cpp writes {che}"
    for tipo, dove in definiti.items():
        if len(dove) > 1:
            yield f"{tipo} names two things: " + ", ".join(dove)
    for che, dove in scambi.items():
        if len(dove) > SCAMBI[che][1]:
            yield f"switches over {che} kinds, more than {SCAMBI[che][1]}: " + ", ".join(dove)
    if len(chiedono) > 1:
        yield "the kind of a control is asked in more than one place: " + ", ".join(chiedono)
    finestra = sum(t.count("\n") for n, t in sorgenti.items() if n.rsplit(".", 1)[0] == FINESTRA)
    if finestra >= RIGHE_FINESTRA:
        yield f"{FINESTRA} has {finestra} lines with its header, not less than {RIGHE_FINESTRA}"
