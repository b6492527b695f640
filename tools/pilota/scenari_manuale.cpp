// The manual's pictures: a session on the sample job, photographed step by step.
#include "Prove.h"

#include <memory>
#include <utility>

using namespace telva::prove;
namespace fs = std::filesystem;

namespace {

Immagine Vista(HWND finestra) {
    RECT r{};
    GetWindowRect(finestra, &r);
    return Schermo(&r);
}

struct Fotografo {
    const Ambiente &amb;
    Programma p{amb.telva, amb.Argomento("LAVORO=dimo01|")};
    HWND finestra = p.Principale(), disegno = p.Controllo("Disegno");
    std::vector<std::uint32_t> vista{}; // what the place of the drawing showed last

    // Waits until that place shows something else (a dialog, too) and all stands still.
    void Cambia(const std::string &foto = {}) {
        Immagine ora = Vista(finestra), qui;
        p.Aspetta("another picture " + foto, [&] {
            qui = Vista(disegno); // between the two of the window, and the same as both in the end
            const Immagine prima = std::exchange(ora, Vista(finestra));
            return qui.pixel != vista && prima.pixel == ora.pixel;
        });
        vista = qui.pixel;
        if (!foto.empty()) ScriviBmp(ora, amb.foto / ("manuale_" + foto + ".bmp"));
    }
    // A place on the drawing, in thousandths of its width and height.
    POINT Punto(int x, int y) const {
        RECT r{};
        GetClientRect(disegno, &r);
        return {r.right * x / 1000, r.bottom * y / 1000};
    }
    void Rettangolo(POINT da, POINT a, const std::string &aperto, const std::string &chiuso) {
        p.Clic(disegno, da), p.Punta(disegno, a), Cambia(aperto);
        p.Clic(disegno, a), Cambia(chiuso);
    }
    void Riempi(const std::string &casella, const std::string &testo) {
        p.Clic(casella), p.Premi("Fine"), p.Premi("Shift+Inizio"), p.Scrivi(casella, testo);
    }
};

void Selezioni(Fotografo &f) {
    const auto nulla = [&] { f.p.Menu("Alt+O", "m"), f.Cambia(); };
    f.p.Premi("Ctrl+A"), f.p.Punta(f.disegno, f.Punto(523, 800));
    f.p.Menu("Alt+S", "m"), f.p.Scrivi("Risposta", "3,4"), f.p.Premi("Invio"), f.Cambia("elenco");
    nulla(), f.p.Clic("GusciAtt"), f.Cambia(), f.p.Menu("Alt+S", "f");
    f.Rettangolo(f.Punto(570, 120), f.Punto(850, 780), "rettangolo", "");
    f.p.Premi("Ctrl+T"), f.Rettangolo(f.Punto(870, 640), f.Punto(640, 400), "rimuovi", "");
    nulla(), f.p.Premi("Ctrl+A");
    f.p.Menu("Alt+S", "c Giu Giu Giu Giu Invio"), f.Cambia("colore");
    nulla(), f.p.Premi("Ctrl+Z"), f.Rettangolo(f.Punto(570, 400), f.Punto(850, 780), "", "");
    for (int y : {190, 340, 540}) f.p.Clic(f.disegno, f.Punto(683, y)), f.Cambia();
    f.p.Clic(f.disegno, f.Punto(619, 312)), f.Cambia("diretta");
    DIVENTA(f.p, f.p.Testo("StringaSel"), "168,286,322,349");
}

void Viste(Fotografo &f) {
    f.Riempi("IntZ(0)", "420"), f.Riempi("IntZ(1)", "760"), f.p.Clic("GusciAtt"), f.Cambia();
    f.p.Premi("Ctrl+O"), f.Cambia("filtri"), f.p.Clic("TuttoZ"), f.Cambia();
    for (const char *k : {"IntY(0)", "IntY(1)", "Angolo(0)", "Angolo(1)"}) f.Riempi(k, "0");
    f.p.Clic("GusciAtt"), f.Cambia("vista"), f.p.Menu("Alt+Z", "p");
    f.p.Dialogo("Opzioni di rappresentazione");
    for (const char *k : {"CheckTxtNodi", "CheckTxtAste", "TxtAste(1)", "TxtAste(3)", "TxtAste(4)"})
        f.p.Clic(k);
    DIVENTA(f.p, f.p.Spuntato("TxtAste(4)"), false);
    f.Cambia("opzioni"), f.p.Clic("Salva"), f.p.ChiudiRiquadro(), f.p.Premi("Esc"), f.Cambia();
    f.p.Premi("Ctrl+Z"), f.Rettangolo(f.Punto(250, 600), f.Punto(550, 950), "", "etichette");
}

} // namespace

SCENARIO(manuale) {
    VERIFICA(fs::exists(amb.telva));
    if (amb.foto.empty() || GetDpiForSystem() != 96) return; // the places are those of 100 %
    const auto opzioni = amb.dati / "custom" / "TelOpzio.txt", prima = amb.foto / "TelOpzio.txt";
    fs::copy_file(opzioni, prima, fs::copy_options::overwrite_existing);
    const std::shared_ptr<void> fine(nullptr, [&](void *) { fs::rename(prima, opzioni); });
    ScriviIngresso(amb.Lavori() / "dimo01", "Edificio campione, unità A", "", 1);
    Fotografo f{amb};
    f.Cambia(), Selezioni(f), Viste(f), f.p.Premi("Ctrl+G");
    UGUALE(f.p.AttendiFine(), 0U);
}
