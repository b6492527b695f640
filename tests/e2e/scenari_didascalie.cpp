// Every control of the three windows: name, caption, tip, and what a reader says of it.
#include "Finestre.h"
#include "Sessione.h"
#include "view/colori.h"

#include <commctrl.h>

#include <algorithm>
#include <set>

using namespace telva::prove;

namespace {

using Tabella = std::vector<ControlloAtteso>;

Tabella Unisci(std::initializer_list<Tabella> parti) {
    Tabella tutti;
    for (const Tabella &parte : parti) tutti.insert(tutti.end(), parte.begin(), parte.end());
    return tutti;
}

// The controls of an array, by their captions.
Tabella Schiera(const std::string &nome, const std::vector<std::string> &didascalie) {
    Tabella schiera;
    for (const std::string &didascalia : didascalie)
        schiera.push_back(
            {.nome = nome + "(" + std::to_string(schiera.size()) + ")", .didascalia = didascalia});
    return schiera;
}

std::vector<std::string> Colori() {
    std::vector<std::string> nomi;
    for (const telva::ColoreNoto &colore : telva::kColori) nomi.emplace_back(colore.nome);
    return nomi;
}

// A text box whose tip is also its name for a reader.
ControlloAtteso Casella(const std::string &nome, const std::string &valore,
                        const std::string &suggerimento) {
    return {nome, valore, suggerimento, suggerimento};
}

ControlloAtteso Angolo(int k, const std::string &asse, const std::string &valore) {
    return Casella("Angolo(" + std::to_string(k) + ")", valore,
                   "Angolo di vista attorno all'asse " + asse + ", in gradi (INVIO ridisegna)");
}

Tabella Intervallo(const std::string &asse, const std::string &minima, const std::string &massima) {
    const std::string nome = "Int" + asse,
                      resto = " coordinata " + asse + " mostrata (INVIO ridisegna)";
    return {Casella(nome + "(0)", minima, "Minima" + resto),
            Casella(nome + "(1)", massima, "Massima" + resto),
            {.nome = "Tutto" + asse,
             .didascalia = "Tutto",
             .suggerimento = "Riporta l'intervallo " + asse + " all'intera struttura"}};
}

// A label and the text box that it names.
Tabella Riga(const std::string &nome, const std::string &valore, const std::string &etichetta) {
    return {{.nome = "Label" + nome, .didascalia = etichetta},
            {.nome = nome, .didascalia = valore, .letto = etichetta}};
}

const Tabella kFinestra = Unisci(
    {{{.nome = "Toolbar1", .didascalia = "Barra degli strumenti"},
      {.nome = "FrameInput"},
      {.nome = "Domanda"},
      {.nome = "Risposta"},
      {.nome = "Disegno", .didascalia = "Disegno della struttura"},
      {.nome = "FrameSel", .didascalia = "Elementi da selezionare"},
      {.nome = "FrameAtt", .didascalia = "Elementi attivati"},
      {.nome = "NodiAtt", .didascalia = "Nodi"},
      {.nome = "AsteAtt", .didascalia = "Aste"},
      {.nome = "GusciAtt", .didascalia = "Gusci"},
      {.nome = "ElSelez", .didascalia = "Elementi selezionati"},
      {.nome = "ElNonSelez", .didascalia = "Elementi non selezionati"},
      {.nome = "LabelInt", .didascalia = "Intervalli di coordinate"},
      {.nome = "Label5", .didascalia = "Risultato della selezione:"},
      {.nome = "StringaSel", .didascalia = "8"},
      {.nome = "Frame2"},
      {.nome = "FunAttiva"},
      {.nome = "SottoFunAttiva"},
      {.nome = "LabStato", .didascalia = "1 asta selezionata\r\nCtrl+A aggiunge, Ctrl+T rimuove"},
      {.nome = "FrameCoord"},
      {.nome = "Label6", .didascalia = "Coordinate:"},
      {.nome = "LabCoord"}},
     Schiera("OptElem", {"Nodi", "Aste", "Gusci", "Elementi continui", "Pareti"}),
     Schiera("LabelAsse", {"X", "Y", "Z"}),
     Schiera("Label1", {"α", "α", "α"}),
     Schiera("Label2", {"X", "Y", "Z"}),
     Intervallo("X", "0", "400"),
     Intervallo("Y", "0", "0"),
     Intervallo("Z", "0", "450"),
     {Angolo(0, "X", "30"), Angolo(1, "Y", "30"), Angolo(2, "Z", "0")}});

const Tabella kTrappola = {
    {.nome = "Frame1"},
    {.nome = "Label1", .didascalia = "Dimensione della trappola:"},
    Casella("TextTrappola", "8", "Raggio della zona di selezione attorno al puntatore, in pixel"),
    {.nome = "Command1", .didascalia = "Chiudi"},
};

const Tabella kOpzioni =
    Unisci({{{.nome = "FrameElementi", .didascalia = "Elementi"},
             {.nome = "CheckSpGus", .didascalia = "Non disegnare i gusci sottili"},
             {.nome = "EvColSel", .didascalia = "Cambia colore agli elementi selezionati"},
             {.nome = "EvColNonSel", .didascalia = "Cambia colore agli elementi non selezionati"},
             {.nome = "FrameNum", .didascalia = "Numerazione"},
             {.nome = "CheckTxtNodi", .didascalia = "Nodi"},
             {.nome = "CheckTxtAste", .didascalia = "Aste"},
             {.nome = "CheckTxtGusci", .didascalia = "Gusci"},
             {.nome = "CheckTxtElCont", .didascalia = "Elementi continui"},
             {.nome = "TxtElCont", .didascalia = "Nome"},
             {.nome = "LabelColoreTxt", .didascalia = "Colore testo:"},
             {.nome = "Salva", .didascalia = "Salva"},
             {.nome = "Chiudi", .didascalia = "Chiudi"}},
            Riga("SpMinGus", "1", "Spessore minimo [cm]:"),
            Riga("SpNonSel", "1", "Spessore degli elementi non selezionati [pixel]:"),
            Riga("SpSel", "4", "Spessore degli elementi selezionati [pixel]:"),
            Riga("Raggio", "5", "Raggio di rappresentazione del nodo [pixel]:"),
            Schiera("TxtNodi", {"Nome", "Vincolo (V)"}),
            Schiera("TxtAste",
                    {"Nome", "Materiale (M)", "Sezione (S)", "Orientamento (O)", "Svincolo (C)"}),
            Schiera("TxtGusci", {"Nome", "Materiale (M)", "Spessore (S)"}),
            Riga("BaseTxt", "5", "Base testo [unità disegno]:"),
            Riga("AltezzaTxt", "5", "Altezza testo [unità disegno]:"),
            Riga("DistTxt", "5", "Distanza tra testo ed elemento [unità disegno]:"),
            Schiera("LabelCol", Colori()),
            Schiera("LabelBordCol", std::vector<std::string>(Colori().size()))});

// The lowest row of the screen that the first letter in a control reaches.
LONG PiedeDelTesto(HWND controllo) {
    RECT r{};
    GetClientRect(controllo, &r);
    MapWindowPoints(controllo, nullptr, reinterpret_cast<POINT *>(&r), 2);
    const Immagine foto = Schermo(&r);
    const auto luce = [&](int x, int y) { return foto.In(x, y) & 0xFF; };
    const auto scuro = [&](int x, int y) { return luce(x, y) * 3 < luce(0, 0) * 2; };
    int prima = foto.larghezza, piede = 0;
    for (int x = 0; x < std::min(prima + 4, foto.larghezza); ++x)
        for (int y = 0; y < foto.altezza; ++y) {
            if (!scuro(x, y)) continue;
            prima = std::min(prima, x);
            piede = std::max(piede, y);
        }
    return r.top + piede;
}

// Where the first row of a label ends, in its pixels.
LONG FineDelTesto(HWND etichetta) {
    const RECT r = Rettangolo(etichetta);
    const Immagine foto = Schermo(&r);
    int fine = 0;
    for (int y = 0; y < foto.altezza / 2; ++y)
        for (int x = fine; x < foto.larghezza; ++x)
            if ((foto.In(x, y) & 0xFF) < 128) fine = x;
    return fine;
}

// The box is given the text beside it: a letter and the same letter.
void VerificaAllineati(const Programma &p, const std::string &etichetta,
                       const std::string &casella) {
    const HWND accanto = p.Controllo(etichetta);
    const std::wstring testo = Largo(p.Testo(accanto));
    SendMessageW(p.Controllo(casella), WM_SETTEXT, 0, reinterpret_cast<LPARAM>(testo.c_str()));
    Passo("look at " + etichetta + " beside " + casella);
    DIVENTA(p, PiedeDelTesto(p.Controllo(casella)), PiedeDelTesto(accanto));
}

} // namespace

SCENARIO(didascalie_allineate) {
    Sessione s(amb);
    s.PuntaInDisparte();
    VerificaAllineati(s, "LabelAsse(0)", "IntX(0)");
    VerificaAllineati(s, "LabelAsse(2)", "IntZ(1)");
    VerificaAllineati(s, "Label1(1)", "Angolo(1)");
    s.ApriOpzioni();
    for (const std::string casella : {"SpNonSel", "SpSel", "Raggio"})
        VerificaAllineati(s, "Label" + casella, casella);
}

// What the caller wants stands out; what finds no room stands in the tip, for half a minute.
SCENARIO(didascalie_stato) {
    Sessione s(amb, Genere::Nodi);
    const int alta = 960;
    s.Dimensiona(s.finestra, 1560, alta);
    s.Scegli(Genere::Gusci);
    s.PuntaInDisparte();
    s.TestoDiventa("LabStato", "richiesti: nodi; nessun guscio selezionato\r\n"
                               "Ctrl+A aggiunge, Ctrl+T rimuove");
    const HWND stato = s.Controllo("LabStato");
    const LONG larga = Ingombro("richiesti: nodi", 1560, FW_BOLD).cx +
                       Ingombro("; nessun guscio selezionato", 1560).cx;
    DIVENTA(s, std::abs(FineDelTesto(stato) - larga) <= 2, true);
    UGUALE(s.Suggerimenti(s.finestra).contains(stato), false);
    const RECT libera = Rettangolo(stato);
    s.Dimensiona(s.finestra, 1520 - (libera.right - libera.left - larga), alta);
    DIVENTA(s, s.Suggerimenti(s.finestra)[stato], s.Testo(stato));
    DIVENTA(s, FineDelTesto(stato) < larga - 20, true); // an ellipsis
    std::set<LRESULT> durate;
    for (HWND h = nullptr; (h = FindWindowExW(nullptr, h, TOOLTIPS_CLASSW, nullptr)) != nullptr;)
        durate.insert(SendMessageW(h, TTM_GETDELAYTIME, TTDT_AUTOPOP, 0));
    VERIFICA(durate.contains(30000));
}

SCENARIO(didascalie_finestra) {
    Sessione s(amb, Genere::Aste, "8");
    s.PuntaInDisparte();
    s.TestoDiventa("LabCoord", "");
    VerificaControlli(s, s.finestra, kFinestra);
}

SCENARIO(didascalie_dialoghi) {
    Sessione s(Copia(amb));
    VerificaControlli(s, s.ApriTrappola(), kTrappola);
    s.Premi("Esc");
    s.Principale();
    VerificaControlli(s, s.ApriOpzioni(), kOpzioni);
}
