// Every control of the three windows: name, caption, tip, and what a reader says of it.
#include "Finestre.h"
#include "Installazione.h"
#include "Sessione.h"

using namespace telva::prove;

namespace {

ControlloAtteso Angolo(int k, const std::string &asse, const std::string &valore) {
    const auto testo = "Angolo di vista attorno all'asse " + asse + ", in gradi (INVIO ridisegna)";
    return {.nome = "Angolo(" + std::to_string(k) + ")",
            .didascalia = valore,
            .suggerimento = testo,
            .letto = testo};
}

ControlloAtteso Minima(const std::string &asse, const std::string &valore) {
    const auto testo = "Minima coordinata " + asse + " mostrata (INVIO ridisegna)";
    return {
        .nome = "Int" + asse + "(0)", .didascalia = valore, .suggerimento = testo, .letto = testo};
}

ControlloAtteso Massima(const std::string &asse, const std::string &valore) {
    const auto testo = "Massima coordinata " + asse + " mostrata (INVIO ridisegna)";
    return {
        .nome = "Int" + asse + "(1)", .didascalia = valore, .suggerimento = testo, .letto = testo};
}

ControlloAtteso Tutto(const std::string &asse) {
    return {.nome = "Tutto" + asse,
            .didascalia = "Tutto",
            .suggerimento = "Riporta l'intervallo " + asse + " all'intera struttura"};
}

const ControlloAtteso kFinestra[] = {
    {.nome = "Toolbar1", .didascalia = "Barra degli strumenti"},
    {.nome = "FrameInput"},
    {.nome = "Domanda"},
    {.nome = "Risposta"},
    {.nome = "Disegno", .didascalia = "Disegno della struttura"},
    {.nome = "FrameSel", .didascalia = "Elementi da selezionare"},
    {.nome = "OptElem(0)", .didascalia = "Nodi"},
    {.nome = "OptElem(1)", .didascalia = "Aste"},
    {.nome = "OptElem(2)", .didascalia = "Gusci"},
    {.nome = "OptElem(3)", .didascalia = "Elementi continui"},
    {.nome = "OptElem(4)", .didascalia = "Pareti"},
    {.nome = "FrameAtt", .didascalia = "Elementi attivati"},
    {.nome = "NodiAtt", .didascalia = "Nodi"},
    {.nome = "AsteAtt", .didascalia = "Aste"},
    {.nome = "GusciAtt", .didascalia = "Gusci"},
    {.nome = "ElSelez", .didascalia = "Elementi selezionati"},
    {.nome = "ElNonSelez", .didascalia = "Elementi non selezionati"},
    {.nome = "LabelInt", .didascalia = "Intervalli di coordinate"},
    {.nome = "LabelAsse(0)", .didascalia = "X"},
    {.nome = "LabelAsse(1)", .didascalia = "Y"},
    {.nome = "LabelAsse(2)", .didascalia = "Z"},
    Minima("X", "0"),
    Massima("X", "400"),
    Tutto("X"),
    Minima("Y", "0"),
    Massima("Y", "0"),
    Tutto("Y"),
    Minima("Z", "0"),
    Massima("Z", "450"),
    Tutto("Z"),
    {.nome = "Label5", .didascalia = "Risultato della selezione:"},
    {.nome = "StringaSel", .didascalia = "8"},
    {.nome = "Label1(0)", .didascalia = "α"},
    {.nome = "Label1(1)", .didascalia = "α"},
    {.nome = "Label1(2)", .didascalia = "α"},
    {.nome = "Label2(0)", .didascalia = "X"},
    {.nome = "Label2(1)", .didascalia = "Y"},
    {.nome = "Label2(2)", .didascalia = "Z"},
    Angolo(0, "X", "30"),
    Angolo(1, "Y", "30"),
    Angolo(2, "Z", "0"),
    {.nome = "Frame2"},
    {.nome = "FunAttiva"},
    {.nome = "SottoFunAttiva"},
    {.nome = "LabStato", .didascalia = "1 asta selezionata\r\nCtrl+A aggiunge, Ctrl+T rimuove"},
    {.nome = "FrameCoord"},
    {.nome = "Label6", .didascalia = "Coordinate:"},
    {.nome = "LabCoord"},
};

const ControlloAtteso kTrappola[] = {
    {.nome = "Frame1"},
    {.nome = "Label1", .didascalia = "Dimensione della trappola:"},
    {.nome = "TextTrappola",
     .didascalia = "8",
     .suggerimento = "Raggio della zona di selezione attorno al puntatore, in pixel",
     .letto = "Raggio della zona di selezione attorno al puntatore, in pixel"},
    {.nome = "Command1", .didascalia = "Chiudi"},
};

ControlloAtteso Casella(const std::string &nome, const std::string &valore,
                        const std::string &letto) {
    return {.nome = nome, .didascalia = valore, .letto = letto};
}

const ControlloAtteso kOpzioni[] = {
    {.nome = "FrameElementi", .didascalia = "Elementi"},
    {.nome = "CheckSpGus", .didascalia = "Non disegnare i gusci sottili"},
    {.nome = "LabelSpMinGus", .didascalia = "Spessore minimo [cm]:"},
    Casella("SpMinGus", "1", "Spessore minimo [cm]:"),
    {.nome = "LabelSpNonSel", .didascalia = "Spessore degli elementi non selezionati [pixel]:"},
    Casella("SpNonSel", "1", "Spessore degli elementi non selezionati [pixel]:"),
    {.nome = "LabelSpSel", .didascalia = "Spessore degli elementi selezionati [pixel]:"},
    Casella("SpSel", "4", "Spessore degli elementi selezionati [pixel]:"),
    {.nome = "EvColSel", .didascalia = "Cambia colore agli elementi selezionati"},
    {.nome = "EvColNonSel", .didascalia = "Cambia colore agli elementi non selezionati"},
    {.nome = "LabelRaggio", .didascalia = "Raggio di rappresentazione del nodo [pixel]:"},
    Casella("Raggio", "5", "Raggio di rappresentazione del nodo [pixel]:"),
    {.nome = "FrameNum", .didascalia = "Numerazione"},
    {.nome = "CheckTxtNodi", .didascalia = "Nodi"},
    {.nome = "TxtNodi(0)", .didascalia = "Nome"},
    {.nome = "TxtNodi(1)", .didascalia = "Vincolo (V)"},
    {.nome = "CheckTxtAste", .didascalia = "Aste"},
    {.nome = "TxtAste(0)", .didascalia = "Nome"},
    {.nome = "TxtAste(1)", .didascalia = "Materiale (M)"},
    {.nome = "TxtAste(2)", .didascalia = "Sezione (S)"},
    {.nome = "TxtAste(3)", .didascalia = "Orientamento (O)"},
    {.nome = "TxtAste(4)", .didascalia = "Svincolo (C)"},
    {.nome = "CheckTxtGusci", .didascalia = "Gusci"},
    {.nome = "TxtGusci(0)", .didascalia = "Nome"},
    {.nome = "TxtGusci(1)", .didascalia = "Materiale (M)"},
    {.nome = "TxtGusci(2)", .didascalia = "Spessore (S)"},
    {.nome = "CheckTxtElCont", .didascalia = "Elementi continui"},
    {.nome = "TxtElCont", .didascalia = "Nome"},
    {.nome = "LabelBaseTxt", .didascalia = "Base testo [unità disegno]:"},
    Casella("BaseTxt", "5", "Base testo [unità disegno]:"),
    {.nome = "LabelAltezzaTxt", .didascalia = "Altezza testo [unità disegno]:"},
    Casella("AltezzaTxt", "5", "Altezza testo [unità disegno]:"),
    {.nome = "LabelDistTxt", .didascalia = "Distanza tra testo ed elemento [unità disegno]:"},
    Casella("DistTxt", "5", "Distanza tra testo ed elemento [unità disegno]:"),
    {.nome = "LabelColoreTxt", .didascalia = "Colore testo:"},
    {.nome = "LabelCol(0)", .didascalia = "Nero"},
    {.nome = "LabelCol(1)", .didascalia = "Bianco"},
    {.nome = "LabelCol(2)", .didascalia = "Blu"},
    {.nome = "LabelCol(3)", .didascalia = "Rosso"},
    {.nome = "LabelCol(4)", .didascalia = "Verde"},
    {.nome = "LabelCol(5)", .didascalia = "Giallo"},
    {.nome = "LabelCol(6)", .didascalia = "Verde scuro"},
    {.nome = "LabelCol(7)", .didascalia = "Magenta"},
    {.nome = "LabelCol(8)", .didascalia = "Azzurro"},
    {.nome = "LabelCol(9)", .didascalia = "Arancione"},
    {.nome = "LabelBordCol(0)"},
    {.nome = "LabelBordCol(1)"},
    {.nome = "LabelBordCol(2)"},
    {.nome = "LabelBordCol(3)"},
    {.nome = "LabelBordCol(4)"},
    {.nome = "LabelBordCol(5)"},
    {.nome = "LabelBordCol(6)"},
    {.nome = "LabelBordCol(7)"},
    {.nome = "LabelBordCol(8)"},
    {.nome = "LabelBordCol(9)"},
    {.nome = "Salva", .didascalia = "Salva"},
    {.nome = "Chiudi", .didascalia = "Chiudi"},
};

} // namespace

SCENARIO(didascalie_finestra) {
    Sessione s(amb, Genere::Aste, "8");
    s.PuntaInDisparte();
    s.TestoDiventa("LabCoord", "");
    VerificaControlli(s.p, s.finestra, kFinestra);
}

SCENARIO(didascalie_dialoghi) {
    const Ambiente mio = Copia(amb);
    std::filesystem::remove(mio.dati / "custom" / "TelOpzio.txt");
    Sessione s(mio);
    s.Menu("Opzioni", "Trappola...");
    VerificaControlli(s.p, s.AttendiDialogo("Opzioni"), kTrappola);
    s.Premi("Esc");
    s.AttendiFinestra();
    s.Menu("Opzioni", "Opzioni...");
    VerificaControlli(s.p, s.AttendiDialogo("Opzioni di rappresentazione"), kOpzioni);
    s.Premi("Esc");
    s.AttendiFinestra();
}
