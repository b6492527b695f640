// The two options dialogs by their keys.
#include "Installazione.h"
#include "Sessione.h"

#include <map>
#include <sstream>
#include <utility>

using namespace telva::prove;
namespace fs = std::filesystem;

namespace {

void ApriTrappola(Sessione &s) {
    s.Menu("Opzioni", "Trappola...");
    s.AttendiDialogo("Opzioni");
}

void ApriOpzioni(Sessione &s) {
    s.Menu("Opzioni", "Opzioni...");
    s.AttendiDialogo("Opzioni di rappresentazione");
}

void Lascia(Sessione &s, const std::string &tasto) {
    s.Premi(tasto);
    s.AttendiFinestra();
}

const RiquadroAtteso kSalvate{
    .titolo = "INFORMAZIONE", .testo = " Opzioni salvate ", .icona = "avviso"};
const RiquadroAtteso kNonSalvate{.titolo = "INFORMAZIONE",
                                 .testo = " Problemi nel salvataggio delle opzioni ",
                                 .icona = "avviso"};

// The lines of TelOpzio.txt in their order, by the controls that show them, with the values they
// have without the file.
const std::pair<const char *, const char *> kRigheOpzioni[] = {
    {"CheckSpGus", "1"},     {"SpMinGus", "1"},      {"SpNonSel", "1"},    {"SpSel", "4"},
    {"line 5", ""},          {"EvColSel", "1"},      {"Raggio", "5"},      {"CheckTxtNodi", "0"},
    {"CheckTxtAste", "0"},   {"CheckTxtGusci", "0"}, {"BaseTxt", "5"},     {"AltezzaTxt", "5"},
    {"LabelCol", "1"},       {"DistTxt", "5"},       {"TxtNodi(0)", "1"},  {"TxtNodi(1)", "1"},
    {"TxtAste(0)", "1"},     {"TxtAste(1)", "1"},    {"TxtAste(2)", "1"},  {"TxtAste(3)", "1"},
    {"TxtAste(4)", "1"},     {"TxtGusci(0)", "1"},   {"TxtGusci(1)", "1"}, {"TxtGusci(2)", "1"},
    {"CheckTxtElCont", "1"}, {"TxtElCont", "1"},     {"line 27", ""},      {"line 28", ""},
    {"line 29", ""},         {"line 30", ""}};

// The file holds those values but where `diverse` gives another one.
void VerificaOpzioni(const fs::path &file, const std::map<std::string, std::string> &diverse) {
    std::istringstream righe(LeggiByte(file).value_or("(no file)"));
    for (const auto &[nome, iniziale] : kRigheOpzioni) {
        std::string riga;
        std::getline(righe, riga);
        const auto altra = diverse.find(nome);
        const std::string atteso = altra == diverse.end() ? iniziale : altra->second;
        Verifica(riga == atteso + "\r",
                 std::string("TelOpzio.txt, ") + nome + ": expected " + Visibile(atteso) +
                     ", saw " + Visibile(riga),
                 __FILE__, __LINE__);
    }
    UGUALE(righe.peek(), std::istringstream::traits_type::eof());
}

const std::vector<std::string> kControlliDeiTesti{"BaseTxt",     "AltezzaTxt",   "DistTxt",
                                                  "LabelCol(0)", "LabelBaseTxt", "LabelDistTxt"};

} // namespace

SCENARIO(dialogo_trappola) {
    Sessione s(amb, Genere::Nodi);
    ApriTrappola(s);
    s.TestoDiventa("Label1", "Dimensione della trappola:");
    s.TestoDiventa("TextTrappola", "8");
    Lascia(s, "Esc");
    const RiquadroAtteso nulla{"ATTENZIONE",
                               " Se la dimensione della trappola è nulla la selezione diretta non "
                               "è possibile ",
                               "avviso"};
    const struct {
        const char *testo, *valore;
    } casi[] = {{.testo = "-7.6", .valore = "8"}, {.testo = "12abc", .valore = "12"},
                {.testo = "abc", .valore = "0"},  {.testo = "0.9", .valore = "0"},
                {.testo = "", .valore = "0"},     {.testo = "3", .valore = "3"}};
    for (const auto &caso : casi)
        for (const bool colTasto : {true, false}) {
            ApriTrappola(s);
            s.Riscrivi("TextTrappola", caso.testo);
            colTasto ? s.Premi("Invio") : s.Spazio("Command1");
            if (caso.valore == std::string("0")) s.ChiudiRiquadro(nulla);
            s.AttendiFinestra();
            ApriTrappola(s);
            s.TestoDiventa("TextTrappola", caso.valore);
            s.Riscrivi("TextTrappola", "77");
            Lascia(s, "Esc"); // leaves it as it was
        }
}

SCENARIO(trappola_usata) {
    Sessione s(amb, Genere::Nodi);
    const auto imposta = [&](const char *pixel) {
        ApriTrappola(s);
        s.Riscrivi("TextTrappola", pixel);
        Lascia(s, "Invio");
        s.Premi("Ctrl+A");
        s.SottoFunzioneDiventa("Selezione diretta");
    };
    imposta("3");
    s.Clic(Nodo(20).Piu(6, 0)); // out of reach of 3 pixels, not of 20
    s.SottoFunzioneDiventa("Seleziona per finestra");
    imposta("20");
    s.Clic(Nodo(20).Piu(6, 3));
    s.ListaDiventa("20");
}

SCENARIO(opzioni_accese_e_spente) {
    const Ambiente mio = Copia(amb);
    fs::remove(mio.dati / "custom" / "TelOpzio.txt");
    Sessione s(mio);
    const auto testi = [&](bool accesi) {
        for (const auto &nome : kControlliDeiTesti) s.Abilitato(nome, accesi);
    };
    ApriOpzioni(s);
    for (const char *nome : {"SpMinGus", "LabelSpMinGus", "TxtElCont"}) s.Abilitato(nome);
    for (const char *nome : {"TxtNodi(0)", "TxtAste(4)", "TxtGusci(2)"}) s.Spento(nome);
    s.Spuntato("EvColSel");
    s.Spuntato("CheckTxtElCont");
    testi(true);
    s.Spazio("CheckTxtElCont");
    s.Spento("TxtElCont");
    testi(false);
    s.Spazio("CheckTxtGusci");
    s.Abilitato("TxtGusci(0)");
    s.Abilitato("TxtGusci(2)");
    testi(true);
    s.Spazio("CheckTxtGusci");
    s.Spento("TxtGusci(2)");
    testi(false);
    s.Spazio("CheckSpGus");
    s.Spento("SpMinGus");
    s.Spento("LabelSpMinGus");
    s.Spazio("CheckTxtNodi");
    s.Abilitato("TxtNodi(0)");
    Lascia(s, "Esc");
}

SCENARIO(opzioni_salvate) {
    const Ambiente mio = Copia(amb);
    const auto file = mio.dati / "custom" / "TelOpzio.txt";
    fs::remove(file);
    Sessione s(mio);
    s.Fotografa("Disegno");
    ApriOpzioni(s);
    s.Spazio("Salva");
    s.ChiudiRiquadro(kSalvate);
    VerificaOpzioni(file, {});
    s.Spazio("CheckSpGus");
    s.Riscrivi("SpNonSel", "9");
    s.Riscrivi("SpSel", "5x");
    s.Riscrivi("Raggio", "7.5");
    s.VaiA("EvColSel");
    s.Premi("Giu");
    s.Spuntato("EvColNonSel");
    s.SenzaSpunta("EvColSel");
    s.Spazio("CheckTxtNodi");
    s.Spazio("TxtNodi(1)");
    s.Riscrivi("BaseTxt", "12.5");
    s.Riscrivi("AltezzaTxt", ""); // which turns the labels just ticked off again
    s.VaiA("LabelCol(1)");
    s.Premi("Destra", "Giu"); // two colours further
    s.Spazio("Salva");
    s.ChiudiRiquadro(kSalvate);
    VerificaOpzioni(file, {{"CheckSpGus", "0"},
                           {"SpNonSel", "9"},
                           {"SpSel", "5"},
                           {"EvColSel", "0"},
                           {"Raggio", "7.5"},
                           {"BaseTxt", "12.5"},
                           {"AltezzaTxt", "0"},
                           {"LabelCol", "3"},
                           {"TxtNodi(1)", "0"}});
    Lascia(s, "Esc");
    s.FotoDiversa(); // drawn with what was saved
}

SCENARIO(opzioni_non_salvate) {
    const Ambiente mio = Copia(amb);
    const auto file = mio.dati / "custom" / "TelOpzio.txt";
    fs::remove(file);
    Sessione s(mio);
    ApriOpzioni(s);
    s.Riscrivi("AltezzaTxt", "6");
    s.Riscrivi("SpSel", "33");
    s.Spazio("CheckTxtNodi");
    Lascia(s, "Esc");
    ApriOpzioni(s); // what was not saved is gone
    s.TestoDiventa("AltezzaTxt", "5");
    s.TestoDiventa("SpSel", "4");
    s.SenzaSpunta("CheckTxtNodi");
    fs::remove(file);
    fs::create_directory(file); // no file can take this place
    s.Spazio("Salva");
    s.ChiudiRiquadro(kNonSalvate);
    s.Spazio("Chiudi");
    s.AttendiFinestra();
}
