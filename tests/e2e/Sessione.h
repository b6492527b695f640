#pragma once
// A session of the program on the small job: what a hand does, and what has to come of it. Every
// expectation waits until it is true; a failure tells the steps before it.
#include "Installazione.h"
#include "ui/controlli/FormTelva.h"

#include <map>

namespace telva::prove {

// A place on the drawing, said by where nodes stood when the session began, in pixels.
struct Luogo {
    int nodo, altro; // half-way between these
    int destra = 0, giu = 0;
    Luogo Piu(int x, int y) const { return {nodo, altro, destra + x, giu + y}; }
};
inline Luogo Nodo(int nome) { return {nome, nome}; }
inline Luogo Mezzo(int nodo, int altro) { return {nodo, altro}; }
// A place with nothing near.
inline Luogo Vuoto() { return Nodo(3).Piu(-60, -60); }

// The element kinds by the places of their buttons.
enum class Genere { Nodi, Aste, Gusci, ElementiContinui, Pareti };

// A caption as it is seen.
std::string SenzaSegno(std::string didascalia);
// What WM_COMMAND says for an item.
UINT NumeroDi(const VoceMenu &voce);

// A message box as it has to be; `icona` is a name of NomeIcona.
struct RiquadroAtteso {
    std::string titolo, testo, icona;
};
// Waits for a message box, compares each of its parts and closes it with Enter.
void ChiudiRiquadro(Programma &p, const RiquadroAtteso &atteso);

// The program on a fresh small job, in a window of about two thirds of the screen.
class Sessione : public Programma {
  public:
    // No node may be selected yet. The job may stand far from the origin.
    explicit Sessione(const Ambiente &amb, Genere genere = Genere::Aste,
                      const std::string &selezione = "", double lontano = 0);

    using Programma::Clic, Programma::Punta, Programma::Rotella;

    // A menu item, or one of the menu that opens out of it, by their captions without "&". One with
    // an access key is chosen by it, else by its place.
    void Scegli(const std::string &menu, const std::string &voce, const std::string &sotto = "");
    // A tool-bar button by the tip it shows.
    void PremiBottone(const std::string &suggerimento);
    void Scegli(Genere genere);
    HWND ApriTrappola();
    HWND ApriOpzioni();

    void Clic(const Luogo &luogo, Bottone bottone = Bottone::Sinistro, int volte = 1) {
        Clic(disegno, Punto(luogo), bottone, volte);
    }
    void Punta(const Luogo &luogo) { Punta(disegno, Punto(luogo)); }
    // Where no element is and no button lights up under the pointer.
    void PuntaInDisparte() { Punta(disegno, {5, 5}); }
    // The wheel over an empty place; positive away from the user.
    void Rotella(int scatti) { Rotella(disegno, Punto(Vuoto()), scatti); }

    // Goes to a control by Tab; the mouse would count a second click on it as a double click.
    void VaiA(const std::string &controllo);
    // Goes there and presses the space bar.
    void Spazio(const std::string &controllo);
    // Goes to a text box, types another text in place of its own, and presses Enter in it.
    void Riscrivi(const std::string &casella, const std::string &testo);
    void Invia(const std::string &casella, const std::string &testo);
    // Asks for names of elements, which opens the answer box.
    void ChiediNomi() { Scegli("Selezioni", "Nome elemento"); }

    void TestoDiventa(const std::string &controllo, const std::string &atteso);
    void ListaDiventa(const std::string &lista) { TestoDiventa("StringaSel", lista); }
    void FunzioneDiventa(const std::string &nome) { TestoDiventa("FunAttiva", nome); }
    void SottoFunzioneDiventa(const std::string &nome) { TestoDiventa("SottoFunAttiva", nome); }
    // Neither function nor sub-function.
    void NienteInCorso();
    // To within two pixels: the view is kept in drawing units.
    void NodoStaIn(int nome, const Luogo &luogo);
    // The tip of a tool-bar button, once the pointer rests on it.
    void BottoneSuggerisce(const std::string &bottone, const std::string &atteso);

    // Takes a picture of a control once it stands still, for the two comparisons.
    void Fotografa(const std::string &controllo);
    void FotoUguale() { Confronta(true); }
    void FotoDiversa() { Confronta(false); }

    POINT Punto(const Luogo &luogo) const;
    // Where an unselected node stands in the drawing, found by its colour.
    std::optional<POINT> DoveStaNodo(int nome) const;
    bool SiVede(int nodo) const { return DoveStaNodo(nodo).has_value(); }

    std::filesystem::path lavoro;
    HWND finestra, disegno;

  private:
    void Confronta(bool uguale) const;
    std::vector<std::uint32_t> Vista() const;

    std::map<int, POINT> nodi_;
    std::string fotoDi_;
    std::vector<std::uint32_t> foto_;
};

} // namespace telva::prove
