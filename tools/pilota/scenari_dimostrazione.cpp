// A task of a day on a job at full capacity, at 100 %: ten beams of the second floor at the left,
// two of them taken away again, handed back. At each step the line of state says what is so and
// what comes next.
#include "Prove.h"

using namespace telva::prove;

namespace {

class Compito : public Programma {
  public:
    explicit Compito(const Ambiente &amb) : Programma(amb.telva, amb.Argomento("LAVORO=piena0")) {}

    using Programma::Clic, Programma::Punta;

    void Dice(const std::string &adesso, const std::string &poi) const {
        DIVENTA(*this, Testo("LabStato"), adesso + "\r\n" + poi);
    }
    // Places on the drawing, in thousandths of its size.
    void Punta(LONG x, LONG y) { Punta(disegno_, InMillesimi(disegno_, x, y)); }
    void Clic(LONG x, LONG y) { Clic(disegno_, InMillesimi(disegno_, x, y)); }
    void Fotografa(const std::filesystem::path &file) const {
        RECT zona{};
        GetWindowRect(finestra_, &zona);
        ScriviBmp(Schermo(&zona), file);
    }

  private:
    HWND finestra_ = Principale(), disegno_ = Controllo("Disegno");
};

void GuardaIlSecondoPiano(Compito &c) {
    c.Dice("nessuna asta selezionata", "Ctrl+A aggiunge, Ctrl+T rimuove");
    for (const char *quota : {"IntZ(0)", "IntZ(1)"}) c.Riscrivi(quota, "600");
    c.Riscrivi("Angolo(0)", "90"); // from above
    c.Riscrivi("Angolo(1)", "0");
    c.Premi("Ctrl+O");
    c.Dice("vista filtrata; nessuna asta selezionata", "Ctrl+A aggiunge, Ctrl+T rimuove");
}

void AggiungiDieciTravi(Compito &c) {
    c.Premi("Ctrl+A");
    c.Dice("vista filtrata; nessuna asta selezionata",
           "clic su un'asta, o menu Selezioni; Esc termina");
    c.Premi("Ctrl+Z"); // the corner at the left
    c.Dice("vista filtrata; nessuna asta selezionata", "clic: primo angolo");
    c.Clic(40, 140);
    c.Dice("vista filtrata; nessuna asta selezionata", "clic: angolo opposto");
    c.Clic(240, 440);
    c.Menu("Alt+S", "f");
    c.Dice("vista filtrata; nessuna asta selezionata", "clic: primo angolo");
    c.Clic(350, 150); // around the outermost beams
    c.Dice("vista filtrata; nessuna asta selezionata", "clic: angolo opposto");
    c.Clic(385, 860);
    c.Dice("vista filtrata; 10 aste selezionate", "clic: primo angolo");
}

void TogliNeDue(Compito &c) {
    c.Premi("Ctrl+T");
    c.Dice("vista filtrata; 10 aste selezionate", "clic su un'asta, o menu Selezioni; Esc termina");
    c.Punta(370, 204);
    c.Dice("vista filtrata; 10 aste selezionate", "clic: asta 2978, sezione 15, materiale 2");
    c.Clic(370, 204);
    c.Dice("vista filtrata; 9 aste selezionate",
           "clic: asta 2978, sezione 15, materiale 2, non selezionata");
    c.Clic(370, 805);
    c.Dice("vista filtrata; 8 aste selezionate",
           "clic: asta 2956, sezione 15, materiale 2, non selezionata");
}

} // namespace

SCENARIO(dimostrazione) {
    VERIFICA(std::filesystem::exists(amb.telva));
    if (GetDpiForSystem() != 96) return; // the places are those of 100 %
    const auto lista = amb.Lavori() / "piena0" / "TelvaOut.txt";
    std::filesystem::remove(lista);
    Compito c(amb);
    GuardaIlSecondoPiano(c);
    AggiungiDieciTravi(c);
    TogliNeDue(c);
    if (!amb.foto.empty()) c.Fotografa(amb.foto / "dimostrazione.bmp");
    c.Premi("Ctrl+G"); // hand back and leave
    UGUALE(c.AttendiFine(), 0U);
    UGUALE(LeggiByte(lista).value_or("(no file)"), "2957-2958,2972-2977\r\n");
}
