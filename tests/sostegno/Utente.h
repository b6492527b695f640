#pragma once
// What the engineer does and sees. Every step is written down: a test that fails prints what was
// done up to there.

#include "platform/superficie.h"
#include "sostegno/Banco.h"

namespace telva {
class CasellaTesto;
class CasellaSpunta;
} // namespace telva

namespace telva::prove {

// The boxes of the side bar and of the strip below the drawing, by what they hold.
enum class Estremo { MinX, MaxX, MinY, MaxY, MinZ, MaxZ };
enum class Filtro { Nodi, Aste, Gusci, Selezionati, NonSelezionati };
enum class Asse { X, Y, Z };

class Utente : public Banco {
  public:
    // --- steps; one that nobody could do (a disabled item) fails the test
    void Menu(const std::string &voce); // by the name of the item
    void Barra(const std::string &chiave);
    void Esc();
    void Lettera(char c);
    // An arrow, + or - of the view; false when the window has no use for the key.
    bool Tasto(int codice);
    void Tipo(int tipo);                   // kNodiTipo...
    void Elenco(const std::string &testo); // into the answer box, then Enter
    void Invio();                          // Enter in the answer box, as it stands
    void Mostra(Filtro filtro);            // its tick, on or off
    void Intervallo(Estremo estremo, const std::string &testo, bool invio = true);
    void Tutto(Asse asse);
    void Angolo(Asse asse, const std::string &testo, bool invio = true);
    void Trappola(const std::string &testo, bool applica = true); // the whole dialog
    void Ridimensiona(double larghezza, double altezza);

    // Places in drawing units.
    void Muovi(double x, double y);
    void Clic(double x, double y); // left; the pointer goes there first
    void ClicDestro(double x, double y);
    void PremiCentrale(double x, double y);
    void MuoviPremuto(double x, double y); // with the middle button down
    void RilasciaCentrale();
    void Trascina(const std::vector<Pixel> &pixel); // with the middle button, from the first one
    void DoppioClic();
    void PerdiIlMouse(); // another window takes it
    void Rotella(int passi);

    // --- what is seen
    std::string Funzione() const;      // "Aggiungi selezione"...
    std::string SottoFunzione() const; // "Selezione diretta"...
    // The flags of the pointer that are on, by their names; "" at rest.
    std::string Gesto() const;
    std::string Elastici() const; // "rettangolo", "linea", both or ""
    std::string Coordinate() const;
    std::string Uscita() const; // TelvaOut.txt
    // The messages since the last look: "ERRORE: text; ...".
    std::string Detto();
    // The items of the menu Selezioni that can be chosen, by their names.
    std::string SelezioniPossibili() const;
};

} // namespace telva::prove
