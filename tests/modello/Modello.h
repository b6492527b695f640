#pragma once
// The rules of view and selection told once more, small and slow: what random sequences are
// compared with. It shares nothing with the program but the message texts.
//
// A step of the user is a procedure here, named as in Utente; what the window then has to show are
// the members. A new rule goes where its step is: what is shown and the view into Modello.cpp, the
// selection into Modello_selezione.cpp, the mouse into Modello_puntatore.cpp.

#include "sostegno/Utente.h"

#include <array>
#include <cmath>
#include <map>
#include <set>
#include <string>
#include <vector>

namespace telva::prove {

struct Punto {
    double x, y;
};

// A window in drawing units.
struct Riquadro {
    double maxX = 0, minX = 0, maxY = 0, minY = 0;
    bool HaArea() const { return std::abs((maxX - minX) * (maxY - minY)) >= 1e-4; }
};

// The scale of the picture box: its top left corner, and its size (y grows upwards, so the height
// is negative).
struct Scala {
    double sinistra = 0, alto = 0, larghezza = 0, altezza = 0;
};

struct Elemento {
    int nome = 0, colore = 1, tipo = 0;     // tipo: of point, line or hatch
    std::map<std::string, int> schede = {}; // its cards
    std::vector<int> punti = {};            // places of its points
    std::vector<int> aste = {};             // a continuous element's bars, -1 where there is none
    bool rotto = false;                     // a continuous element with a bar outside the tables
    bool sottile = false;                   // a shell that is too thin to be drawn
    bool triangolo = false;                 // a shell that is picked as one
    bool selezionato = false, attivo = false;
};

// What the caller hands in.
struct Ingresso {
    std::string lista;
    int tipo = 0;
};

struct Modello {
    enum { kNodi, kAste, kGusci, kContinui, kPareti }; // kinds
    // The code of any colour; codes from the second one on hide what has them.
    static constexpr int kOgniColore = 10, kColoreNascosto = 10;
    enum Funzione { kNiente, kAggiungere, kRimuovere };

    explicit Modello(const LavoroProva &lavoro);

    // --- what the window has to show
    int tipo = kNodi;
    Funzione funzione = kNiente;
    std::string sotto; // "Finestra", "Diretta", the item of a property that is asked for, or ""
    bool primoAngolo = false, spostaInCorso = false, modoZoom = false, modoSposta = false;
    bool finestraAutomatica = false, lineaSposta = false, risposta = false, coordinate = true;
    Puntatore puntatore = Puntatore::Predefinito; // on the drawing
    std::string sottoFunAttiva, domanda, testoRisposta, labCoord;
    std::array<std::string, 5> liste; // by kind
    std::set<std::string> abilitate;  // items of the menu Selezioni
    std::array<std::string, 6> intervalli;
    std::array<std::string, 3> angoli = {"0", "0", "0"};
    std::string messaggi; // title, icon and text, one behind the other
    std::array<std::vector<Elemento>, 4> elementi;
    Riquadro zoom, vista;
    Scala scala;

    // --- the box and its settings
    double largo = 1, alto = 1; // pixels
    double trappola = 8;
    std::vector<Punto> punti; // projected

    // --- steps
    // The last one is to be left out: nobody can do it now, or the last digits of a sum would
    // decide what it does.
    bool salta = false;
    void Menu(const std::string &voce);
    void Clic(double x, double y);
    void ClicDestro(double x, double y);
    void Muovi(double x, double y);
    void Trascina(const std::vector<Pixel> &pixel);
    void DoppioClic();
    void Rotella(int passi);
    void Tasto(int codice); // of the view
    void Ridimensiona(double larghezza, double altezza);
    void Esc() { Interrompi(); }
    void Lettera(char) {}
    void Elenco(const std::string &testo);
    void Invio();
    void Tipo(int nuovo);
    void Mostra(Filtro filtro);
    void Tutto(Asse asse);
    void Intervallo(Estremo estremo, const std::string &testo, bool invio);
    void Angolo(Asse asse, const std::string &testo, bool invio);
    void Trappola(const std::string &testo, bool applica);

    // The line of state: how many are selected and hidden; what stands out before it.
    std::string Adesso() const;
    std::string Evidenza() const;
    // The start: intervals on the whole structure, everything in view, the caller's list selected.
    void Avvio(const Ingresso &ingresso);
    // The rubber bands: left, top, width and height; from and to.
    std::array<double, 4> Rettangolo() const {
        return {std::min(angolo0_.x, angolo1_.x), std::max(angolo0_.y, angolo1_.y),
                std::abs(angolo1_.x - angolo0_.x), std::abs(angolo1_.y - angolo0_.y)};
    }
    std::array<double, 4> Linea() const { return {linea0_.x, linea0_.y, linea1_.x, linea1_.y}; }
    double RaggioTrappola() const { return trappola * scala.larghezza / largo; }
    bool InVista(double x, double y) const;
    // A place as an event tells it: in single precision where that is near enough.
    Punto Evento(double x, double y) const;
    // A place that pans by whole pixels while a pan is awaited.
    Punto AlPixel(double x, double y) const;

  private:
    void Dice(const std::string &testo, const char *titolo, int gravita);

    // --- the view
    void InteroIntervallo(int asse);
    bool Proietta();
    bool Dentro(const Elemento &e) const;
    bool Disegnato(const Elemento &e) const;
    bool Zoomata() const;
    static bool Piccola(const Riquadro &r); // for the wheel
    Riquadro Mostrati() const;
    void Inquadra(const Riquadro &finestra);
    Riquadro Attorno(double x, double y, double unita) const;
    void InquadraAttorno(double x, double y, double unita);
    void InquadraLunghezza(const Riquadro &finestra);
    static bool Giusto(const std::string &intervallo); // of those that a step types
    void ControllaIntervalli();
    void Adatta();
    void Ridisegna();
    void Ottimizza();
    void Trasla(const Riquadro &da, double dx, double dy);

    // --- the selection
    void AggiornaLista();
    // Writes the flag of those of the chosen kind that are active and fit; `vale` is asked about
    // the element, of a continuous one about each of its bars.
    template <class Vale, class Azione>
    void Segna(Vale vale, Azione azione);
    void Attributo(const std::string &menu, int codice);
    void Numeri(const std::string &proprieta, const std::string &elenco);
    void AzzeraInput();
    void Annulla();
    void ChiudiFinestra();              // the one that is being drawn
    void Arma(const std::string &voce); // "ZoomIn" or "Sposta"
    void Interrompi();
    void RimuoviTutto();
    void Inverti();
    void VoceSelezioni(const std::string &menu, int codice);
    void ChiediProprieta(const std::string &proprieta);

    // --- the pointer
    bool Meno(double a, double b); // a < b, and not by a hair
    double Distanza(const Elemento &e, double x, double y);
    double DistanzaGuscio(const Elemento &e, double x, double y);
    int Scelto(double x, double y);
    std::vector<Elemento *> NelRettangolo(double margine);
    void SelezionaRettangolo();
    void RiprendiDiretta();
    void Didascalia();
    void Premi(double x, double y);
    void SecondoAngolo();

    const LavoroProva lavoro_;
    double largoScala_ = 0, altoScala_ = 0; // the box that the scale was made for; 0: none yet
    std::array<std::string, 6> ultimi_;     // intervals that were right
    std::array<std::string, 3> validi_;     // angles that were right
    std::set<Filtro> nascosti_;             // boxes without their tick
    bool ultimoCentrale_ = false;           // of the buttons that were pressed
    int richiesto_ = kNodi;                 // kind that the caller asks for
    Punto angolo0_{}, angolo1_{};           // rectangle
    Punto linea0_{}, linea1_{};             // where a pan or a drag began, and where the pointer is
};

template <class Vale, class Azione>
void Modello::Segna(Vale vale, Azione azione) {
    const auto asta = [&](int b) {
        return b >= 0 && elementi[kAste][b].attivo && vale(elementi[kAste][b]);
    };
    if (tipo == kPareti) return;
    for (Elemento &e : elementi[tipo]) {
        bool va = tipo == kContinui || (e.attivo && vale(e));
        for (const int b : e.aste) va = va && asta(b);
        if (va) azione(e);
    }
}

} // namespace telva::prove
