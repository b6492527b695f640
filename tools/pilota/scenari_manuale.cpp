// The manual's pictures: a session on the sample job, photographed step by step.
#include "Prove.h"

#include <memory>
#include <utility>

using namespace telva::prove;
namespace fs = std::filesystem;

namespace {

// The menu items of this session, by the keys that reach them.
struct Voce {
    const char *menu, *tasti;
};
constexpr Voce kRimuoviTutto{"Alt+O", "m"};
constexpr Voce kPerFinestra{"Alt+S", "f"};
constexpr Voce kPerColoreGiallo{"Alt+S", "c Giu Giu Giu Giu Invio"};
constexpr Voce kPerMateriale{"Alt+S", "m"};
constexpr Voce kOpzioni{"Alt+Z", "p"};

// A place on the drawing, in thousandths of its width and height.
struct Posto {
    int x, y;
};

// The program on the sample job. A step that changes the picture is over when the drawing (or a
// dialog over it) shows something else and all stands still.
class Seduta : public Programma {
  public:
    explicit Seduta(const Ambiente &amb)
        : Programma(amb.telva, amb.Argomento("LAVORO=dimo01|")), foto_(amb.foto) {
        AspettaDisegno();
    }

    void AspettaDisegno() {
        Immagine ora = Vista(finestra_), qui;
        Aspetta("another picture", [&] {
            qui = Vista(disegno_); // between two of the window, and the same as both in the end
            const Immagine prima = std::exchange(ora, Vista(finestra_));
            return qui.pixel != disegnoVisto_ && prima.pixel == ora.pixel;
        });
        disegnoVisto_ = qui.pixel;
        finestraVista_ = ora;
    }

    // The window as it stood after the last step that changed it.
    void Foto(const std::string &nome) const {
        ScriviBmp(finestraVista_, foto_ / ("manuale_" + nome + ".bmp"));
    }

    void Scegli(const Voce &voce) { Menu(voce.menu, voce.tasti); }
    void RimuoviTutto() {
        Scegli(kRimuoviTutto);
        AspettaDisegno();
    }
    void ClicSu(const std::string &controllo) {
        Clic(controllo);
        AspettaDisegno();
    }
    void ClicIn(const Posto &posto) {
        Clic(disegno_, Punto(posto));
        AspettaDisegno();
    }
    void PuntaIn(const Posto &posto) { Punta(disegno_, Punto(posto)); }

    // First corner of a rectangle, and the pointer where the second one is going to be.
    void ApriRettangolo(const Posto &da, const Posto &a) {
        Clic(disegno_, Punto(da));
        PuntaIn(a);
        AspettaDisegno();
    }
    void Rettangolo(const Posto &da, const Posto &a) {
        ApriRettangolo(da, a);
        ClicIn(a);
    }

  private:
    static Immagine Vista(HWND finestra) {
        RECT r{};
        GetWindowRect(finestra, &r);
        return Schermo(&r);
    }
    POINT Punto(const Posto &posto) const { return InMillesimi(disegno_, posto.x, posto.y); }

    fs::path foto_;
    HWND finestra_ = Principale(), disegno_ = Controllo("Disegno");
    std::vector<std::uint32_t> disegnoVisto_;
    Immagine finestraVista_;
};

void PerElenco(Seduta &s) {
    s.Premi("Ctrl+A"); // add
    s.PuntaIn({523, 800});
    s.Scegli(kPerMateriale);
    s.Scrivi("Risposta", "3,4");
    s.Premi("Invio");
    s.AspettaDisegno();
    s.Foto("elenco");
    s.RimuoviTutto();
}

void PerRettangolo(Seduta &s) {
    s.ClicSu("GusciAtt"); // no shells
    s.Scegli(kPerFinestra);
    s.ApriRettangolo({570, 120}, {850, 780});
    s.Foto("rettangolo");
    s.ClicIn({850, 780});
    s.Premi("Ctrl+T"); // remove
    s.ApriRettangolo({870, 640}, {640, 400});
    s.Foto("rimuovi");
    s.ClicIn({640, 400});
    s.RimuoviTutto();
}

// Leaves the menus that it opens.
void MenuDeiColori(Seduta &s) {
    for (const char *tasto : {"Alt+S", "c", "Su"}) Manda(Accordo(tasto));
    s.AspettaDisegno();
    s.Foto("menu");
    for (int k = 0; k < 3; ++k) Manda(Accordo("Esc"));
    s.Principale();
    s.AspettaDisegno();
}

void PerColore(Seduta &s) {
    s.Premi("Ctrl+A");
    MenuDeiColori(s);
    s.Scegli(kPerColoreGiallo);
    s.AspettaDisegno();
    s.Foto("colore");
    s.RimuoviTutto();
}

void UnoAllaVolta(Seduta &s) {
    s.Premi("Ctrl+Z"); // zoom
    s.Rettangolo({570, 400}, {850, 780});
    for (const Posto &asta : {Posto{683, 190}, {683, 340}, {683, 540}, {619, 312}}) s.ClicIn(asta);
    s.PuntaIn({622, 509}); // the next one
    s.AspettaDisegno();
    s.Foto("diretta");
    DIVENTA(s, s.Testo("StringaSel"), "168,286,322,349");
}

void UnPiano(Seduta &s) {
    s.Riscrivi("IntZ(0)", "420");
    s.Riscrivi("IntZ(1)", "760");
    s.ClicSu("GusciAtt"); // shells again
    s.Premi("Ctrl+O");    // fit
    s.AspettaDisegno();
    s.Foto("filtri");
    s.ClicSu("TuttoZ");
}

void DiFronte(Seduta &s) {
    for (const char *casella : {"IntY(0)", "IntY(1)", "Angolo(0)", "Angolo(1)"})
        s.Riscrivi(casella, "0");
    s.ClicSu("GusciAtt");
    s.Foto("vista");
}

void ConEtichette(Seduta &s) {
    s.Scegli(kOpzioni);
    s.Dialogo("Opzioni di rappresentazione");
    for (const char *spunta :
         {"CheckTxtNodi", "CheckTxtAste", "TxtAste(1)", "TxtAste(3)", "TxtAste(4)"})
        s.Clic(spunta);
    DIVENTA(s, s.Spuntato("TxtAste(4)"), false);
    s.AspettaDisegno();
    s.Foto("opzioni");
    s.Clic("Salva");
    s.ChiudiRiquadro();
    s.Premi("Esc");
    s.AspettaDisegno();
    s.Premi("Ctrl+Z");
    s.Rettangolo({250, 600}, {550, 950});
    s.Foto("etichette");
}

} // namespace

SCENARIO(manuale) {
    VERIFICA(fs::exists(amb.telva));
    if (amb.foto.empty() || GetDpiForSystem() != 96) return; // the places are those of 100 %
    const auto opzioni = amb.dati / "custom" / "TelOpzio.txt", prima = amb.foto / "TelOpzio.txt";
    fs::copy_file(opzioni, prima, fs::copy_options::overwrite_existing);
    const std::shared_ptr<void> fine(nullptr, [&](void *) { fs::rename(prima, opzioni); });
    ScriviIngresso(amb.Lavori() / "dimo01", "Edificio campione, unità A", "", 1);
    Seduta s(amb);
    PerElenco(s);
    PerRettangolo(s);
    PerColore(s);
    UnoAllaVolta(s);
    UnPiano(s);
    DiFronte(s);
    ConEtichette(s);
    s.Premi("Ctrl+G"); // hand back and leave
    UGUALE(s.AttendiFine(), 0U);
}
