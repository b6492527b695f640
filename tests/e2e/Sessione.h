#pragma once
// A session of the program on the small job: what a hand does, and what has to come of it. Every
// expectation waits until it is true; a failure tells the steps before it.
#include "LavoroPiccolo.h"

#include <map>

namespace telva::prove {

// A place on the drawing, said by where nodes stood when the session began, in pixels.
struct Luogo {
    enum class Modo { Nodo, Mezzo, Incrocio };
    Modo modo;
    int primo, secondo, destra = 0, giu = 0;
    Luogo Piu(int versoDestra, int versoGiu) const {
        return {modo, primo, secondo, destra + versoDestra, giu + versoGiu};
    }
    std::string Testo() const;
};
inline Luogo Nodo(int nome) { return {Luogo::Modo::Nodo, nome, nome}; }
// Half-way between two nodes.
inline Luogo Mezzo(int a, int b) { return {Luogo::Modo::Mezzo, a, b}; }
// As far right as one node and as far down as the other.
inline Luogo Incrocio(int destraDi, int altezzaDi) {
    return {Luogo::Modo::Incrocio, destraDi, altezzaDi};
}
// A place with nothing near.
inline Luogo Vuoto() { return Nodo(3).Piu(-60, -60); }

// The element kinds by the places of their buttons.
enum class Genere { Nodi, Aste, Gusci, ElementiContinui, Pareti };

// A message box as it has to be; `icona` is a name of NomeIcona.
struct RiquadroAtteso {
    std::string titolo, testo, icona;
};
// Waits for a message box, compares each of its parts and closes it with Enter.
void ChiudiRiquadro(Programma &p, const RiquadroAtteso &atteso);

class Sessione {
  public:
    // Starts the program on a fresh small job, in a window of about two thirds of the screen; no
    // node may be selected yet.
    explicit Sessione(const Ambiente &amb, Genere genere = Genere::Aste,
                      const std::string &selezione = "");

    // Keys ("Ctrl+A", "Invio"); each of the arguments one after the other.
    template <class... T>
    void Premi(const T &...tasti) {
        (PremiUno(tasti), ...);
    }
    void Digita(const std::string &testo);
    // A menu item by its captions.
    void Menu(const std::string &menu, const std::string &voce, const std::string &sotto = "");
    // A menu by its keys: "Alt+S", "l Esc Esc".
    void MenuConTasti(const std::string &apri, const std::string &tasti);
    // A tool-bar button by the tip it shows.
    void PremiBottone(const std::string &suggerimento);
    void Scegli(Genere genere);

    void Clic(const Luogo &luogo, Bottone bottone = Bottone::Sinistro, int volte = 1);
    void DoppioClic(const Luogo &luogo, Bottone bottone = Bottone::Sinistro) {
        Clic(luogo, bottone, 2);
    }
    void Clic(const std::string &controllo);
    void Punta(const Luogo &luogo);
    // Where no element is and no button lights up under the pointer.
    void PuntaInDisparte();
    void TrascinaColMedio(const Luogo &da, const Luogo &a, const std::function<void()> &inMezzo);
    // The wheel over an empty place; positive away from the user.
    void Rotella(int scatti);
    void Dimensiona(int larghezza, int altezza);

    // Goes to a control by Tab; the mouse would count a second click on it as a double click.
    void VaiA(const std::string &controllo);
    // Goes there and presses the space bar.
    void Spazio(const std::string &controllo);
    // Goes to a text box and types another text in place of its own.
    void Riscrivi(const std::string &casella, const std::string &testo);
    // Types an answer and presses Enter.
    void Rispondi(const std::string &testo);
    // Asks for names of elements, which opens the answer box.
    void ChiediNomi() { Menu("Selezioni", "Nome elemento"); }

    void TestoDiventa(const std::string &controllo, const std::string &atteso);
    void ListaDiventa(const std::string &lista) { TestoDiventa("StringaSel", lista); }
    void FunzioneDiventa(const std::string &nome) { TestoDiventa("FunAttiva", nome); }
    void SottoFunzioneDiventa(const std::string &nome) { TestoDiventa("SottoFunAttiva", nome); }
    // Neither function nor sub-function.
    void NienteInCorso();
    void Abilitato(const std::string &controllo, bool atteso = true);
    void Spento(const std::string &controllo) { Abilitato(controllo, false); }
    void Visibile(const std::string &controllo, bool atteso = true);
    void Nascosto(const std::string &controllo) { Visibile(controllo, false); }
    void Spuntato(const std::string &controllo, bool atteso = true);
    void SenzaSpunta(const std::string &controllo) { Spuntato(controllo, false); }
    void SiVede(int nodo, bool atteso = true);
    void NonSiVede(int nodo) { SiVede(nodo, false); }
    // To within two pixels: the view is kept in drawing units.
    void NodoStaIn(int nome, const Luogo &luogo);
    // The tip of a tool-bar button, once the pointer rests on it.
    void BottoneSuggerisce(const std::string &bottone, const std::string &atteso);
    void ChiudiRiquadro(const RiquadroAtteso &atteso);

    // Takes a picture of a control once it stands still, for the two comparisons.
    void Fotografa(const std::string &controllo);
    void FotoUguale() { Confronta(true); }
    void FotoDiversa() { Confronta(false); }

    POINT Punto(const Luogo &luogo) const;
    // Where an unselected node stands in the drawing, found by its colour.
    std::optional<POINT> DoveStaNodo(int nome) const;
    HWND AttendiDialogo(const std::string &titolo);
    void AttendiFinestra() const;

    std::filesystem::path lavoro;
    Programma p;
    HWND finestra, disegno;

  private:
    void PremiUno(const std::string &tasti);
    void Confronta(bool uguale) const;
    std::vector<std::uint32_t> Vista() const;

    std::map<int, POINT> nodi_;
    std::string fotoDi_;
    std::vector<std::uint32_t> foto_;
};

} // namespace telva::prove
