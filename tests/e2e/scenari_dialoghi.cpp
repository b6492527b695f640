// The two options dialogs by their keys.
#include "Sessione.h"

using namespace telva::prove;
namespace fs = std::filesystem;

namespace {

void Salva(Sessione &s, const std::string &messaggio) {
    s.Spazio("Salva");
    ChiudiRiquadro(s, {.titolo = "INFORMAZIONE", .testo = messaggio, .icona = "avviso"});
}

std::vector<std::string> Righe(const fs::path &file) {
    std::istringstream testo(LeggiByte(file).value_or(""));
    std::vector<std::string> righe;
    for (std::string riga; std::getline(testo, riga);) righe.push_back(riga);
    return righe;
}

} // namespace

SCENARIO(dialogo_trappola) {
    Sessione s(amb, Genere::Nodi);
    s.ApriTrappola();
    DIVENTA(s, s.HaFuoco("TextTrappola"), true);
    s.Riscrivi("TextTrappola", "0.9");
    s.Premi("Invio");
    ChiudiRiquadro(s, {.titolo = "ATTENZIONE",
                       .testo = " Se la dimensione della trappola è nulla la selezione diretta non "
                                "è possibile ",
                       .icona = "avviso"});
    s.Principale();
    s.ApriTrappola();
    s.TestoDiventa("TextTrappola", "0");
}

// The mark of the button that Enter presses.
static bool Marcato(HWND bottone) {
    return (GetWindowLongPtrW(bottone, GWL_STYLE) & BS_TYPEMASK) == BS_DEFPUSHBUTTON;
}

SCENARIO(dialogo_opzioni) {
    const Ambiente mio = Copia(amb);
    const auto file = mio.dati / "custom" / "TelOpzio.txt";
    Sessione s(mio);
    s.Fotografa("Disegno");
    s.ApriOpzioni();
    DIVENTA(s, s.HaFuoco("CheckSpGus"), true);
    s.VaiA("Chiudi");
    s.VaiA("SpNonSel");
    DIVENTA(s, Marcato(s.Controllo("Salva")), true);
    s.Premi("Invio"); // "Salva"
    ChiudiRiquadro(s, {.titolo = "INFORMAZIONE", .testo = " Opzioni salvate ", .icona = "avviso"});
    std::vector<std::string> attese = Righe(file); // of the options as they are without a file
    UGUALE(attese.size(), 30U);
    s.Spazio("CheckSpGus");
    DIVENTA(s, s.Abilitato("SpMinGus"), false);
    s.Riscrivi("SpNonSel", "9");
    s.Riscrivi("Raggio", "7.5");
    s.VaiA("EvColSel");
    s.Premi("Giu");
    DIVENTA(s, s.Spuntato("EvColNonSel"), true);
    s.Spazio("CheckTxtNodi");
    s.Spazio("TxtNodi(1)");
    s.VaiA("LabelCol(1)");
    s.Premi("Destra");
    s.Premi("Giu"); // two colours further
    Salva(s, " Opzioni salvate ");
    attese.at(0) = "0\r";   // CheckSpGus
    attese.at(2) = "9\r";   // SpNonSel
    attese.at(5) = "0\r";   // EvColSel
    attese.at(6) = "7.5\r"; // Raggio
    attese.at(7) = "1\r";   // CheckTxtNodi
    attese.at(12) = "3\r";  // LabelCol
    attese.at(15) = "0\r";  // TxtNodi(1)
    const std::vector<std::string> scritte = Righe(file);
    for (std::size_t k = 0; k < 30; ++k) UGUALE(scritte.at(k), attese.at(k));
    s.Premi("Esc");
    s.Principale();
    s.FotoDiversa(); // drawn with what was saved
}
