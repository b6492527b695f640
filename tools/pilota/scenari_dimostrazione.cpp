// A task of a day on a job at full capacity, at 100 %: ten beams of the second floor at the left,
// two of them taken away again, handed back. At each step the line of state says what is so and
// what comes next.
#include "Prove.h"

using namespace telva::prove;

SCENARIO(dimostrazione) {
    VERIFICA(std::filesystem::exists(amb.telva));
    if (GetDpiForSystem() != 96) return; // the places are those of 100 %
    const auto lavoro = amb.Lavori() / "piena0";
    std::filesystem::remove(lavoro / "TelvaOut.txt");
    Programma p(amb.telva, amb.Argomento("LAVORO=piena0"));
    const HWND finestra = p.Principale(), disegno = p.Controllo("Disegno");
    const auto clic = [&](LONG x, LONG y) { p.Clic(disegno, p.InMillesimi(disegno, x, y)); };
    const auto dice = [&](const std::string &adesso, const std::string &poi) {
        DIVENTA(p, p.Testo("LabStato"), adesso + "\r\n" + poi);
    };
    dice("nessuna asta selezionata", "Ctrl+A aggiunge, Ctrl+T rimuove");
    for (const char *quota : {"IntZ(0)", "IntZ(1)"}) p.Riscrivi(quota, "600");
    p.Riscrivi("Angolo(0)", "90"); // from above
    p.Riscrivi("Angolo(1)", "0");
    p.Premi("Ctrl+O");
    dice("vista filtrata; nessuna asta selezionata", "Ctrl+A aggiunge, Ctrl+T rimuove");
    p.Premi("Ctrl+A");
    dice("vista filtrata; nessuna asta selezionata",
         "clic su un'asta, o menu Selezioni; Esc termina");
    p.Premi("Ctrl+Z"); // to the corner at the left
    dice("vista filtrata; nessuna asta selezionata", "clic: primo angolo");
    clic(40, 140);
    dice("vista filtrata; nessuna asta selezionata", "clic: angolo opposto");
    clic(240, 440);
    p.Menu("Alt+S", "f");
    dice("vista filtrata; nessuna asta selezionata", "clic: primo angolo");
    clic(350, 150); // around the outermost beams
    dice("vista filtrata; nessuna asta selezionata", "clic: angolo opposto");
    clic(385, 860);
    dice("vista filtrata; 10 aste selezionate", "clic: primo angolo");
    p.Premi("Ctrl+T");
    dice("vista filtrata; 10 aste selezionate", "clic su un'asta, o menu Selezioni; Esc termina");
    p.Punta(disegno, p.InMillesimi(disegno, 370, 204));
    dice("vista filtrata; 10 aste selezionate", "clic: asta 2978, sezione 15, materiale 2");
    clic(370, 204);
    dice("vista filtrata; 9 aste selezionate",
         "clic: asta 2978, sezione 15, materiale 2, non selezionata");
    clic(370, 805);
    dice("vista filtrata; 8 aste selezionate",
         "clic: asta 2956, sezione 15, materiale 2, non selezionata");
    RECT zona{};
    GetWindowRect(finestra, &zona);
    if (!amb.foto.empty()) ScriviBmp(Schermo(&zona), amb.foto / "dimostrazione.bmp");
    p.Premi("Ctrl+G"); // hand back and leave
    UGUALE(p.AttendiFine(), 0U);
    UGUALE(LeggiByte(lavoro / "TelvaOut.txt").value_or("(no file)"), "2957-2958,2972-2977\r\n");
}
