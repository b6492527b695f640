#pragma once
// What the engineer does and sees.

#include "platform/tasti.h"
#include "sostegno/Banco.h"
#include "ui/controlli/FormOptInt.h"
#include "ui/controlli/FormTelva.h"

#include <algorithm>
#include <stdexcept>

namespace telva {
inline void PrintTo(const Pixel &p, std::ostream *os) { *os << "{" << p.x << ", " << p.y << "}"; }
} // namespace telva

namespace telva::prove {

// The boxes of the side bar and of the strip below the drawing, by what they hold.
enum class Estremo { MinX, MaxX, MinY, MaxY, MinZ, MaxZ };
enum class Filtro { Nodi, Aste, Gusci, Selezionati, NonSelezionati };
inline constexpr int kFiltri = 5;
enum class Asse { X, Y, Z };
inline void PrintTo(Estremo e, std::ostream *os) {
    static const char *const kNomi[] = {"MinX", "MaxX", "MinY", "MaxY", "MinZ", "MaxZ"};
    *os << "Estremo::" << kNomi[static_cast<int>(e)];
}
inline void PrintTo(Filtro f, std::ostream *os) {
    static const char *const kNomi[] = {"Nodi", "Aste", "Gusci", "Selezionati", "NonSelezionati"};
    *os << "Filtro::" << kNomi[static_cast<int>(f)];
}
inline void PrintTo(Asse a, std::ostream *os) {
    *os << "Asse::"
        << "XYZ"[static_cast<int>(a)];
}

class Utente : public Banco {
  protected:
    static constexpr int kInvio = kTastoInvio, kEsc = kTastoEsc;
    static constexpr bool kSenzaInvio = false; // typed, and not yet entered
    static constexpr int kSinistro = 1, kDestro = 2, kCentrale = 4;

    static RiquadroDisegno &Disegno() { return FormTelva.Disegno; }
    static VoceMenu &Voce(const std::string &nome) {
        const auto voce = std::ranges::find(FormTelva.voci, nome, &VoceMenu::NomeControllo);
        if (voce == FormTelva.voci.end()) throw std::logic_error("there is no item " + nome);
        return **voce;
    }
    static void ScriviIn(CasellaTesto &casella, const std::string &testo, bool invio) {
        casella.Text = testo;
        if (invio) casella.KeyDown(kInvio);
    }
    static void Aggiungi(std::string &elenco, const std::string &voce) {
        elenco += (elenco.empty() ? "" : " ") + voce;
    }

  public:
    // --- steps; one that nobody could do (a disabled item) fails the test
    void Menu(const std::string &voce) { // by the name of the item
        const VoceMenu &v = Voce(voce);
        if (!v.Click) return; // opens its own items
        if (!v.Enabled) throw std::logic_error("the item " + voce + " is disabled");
        Passo(Scritto("Menu", voce), v.Click);
    }
    void Esc() {
        Passo("Esc()", [] { FormTelva.KeyPress(kEsc); });
    }
    void Lettera(char c) { // a key without a meaning
        Passo(Scritto("Lettera", c), [&] { FormTelva.KeyPress(c); });
    }
    void Tasto(int codice) { // an arrow, + or - of the view
        Passo(Scritto("Tasto", codice), [&] { FormTelva.KeyDown(codice); });
    }
    void Tipo(int tipo) { // kNodiTipo...
        Passo(Scritto("Tipo", tipo), [&] { FormTelva.OptElem[tipo].Seleziona(); });
    }
    void Elenco(const std::string &testo) { // into the answer box, then Enter
        if (!FormTelva.Risposta.Enabled) throw std::logic_error("no list is asked for");
        Passo(Scritto("Elenco", testo), [&] { ScriviIn(FormTelva.Risposta, testo, true); });
    }
    void Invio() { // Enter in the answer box, as it stands
        Passo("Invio()", [] { FormTelva.Risposta.KeyDown(kInvio); });
    }
    void Mostra(Filtro filtro) { // its tick, on or off
        ModuloTelva &f = FormTelva;
        CasellaSpunta *const caselle[] = {&f.NodiAtt, &f.AsteAtt, &f.GusciAtt, &f.ElSelez,
                                          &f.ElNonSelez};
        Passo(Scritto("Mostra", filtro), [&] { caselle[static_cast<int>(filtro)]->Premi(); });
    }
    void Intervallo(Estremo estremo, const std::string &testo, bool invio = true) {
        ModuloTelva &f = FormTelva;
        CasellaTesto *const caselle[] = {&f.IntX[0], &f.IntX[1], &f.IntY[0],
                                         &f.IntY[1], &f.IntZ[0], &f.IntZ[1]};
        Passo(Scritto("Intervallo", estremo, testo, invio),
              [&] { ScriviIn(*caselle[static_cast<int>(estremo)], testo, invio); });
    }
    void Tutto(Asse asse) {
        Pulsante *const pulsanti[] = {&FormTelva.TuttoX, &FormTelva.TuttoY, &FormTelva.TuttoZ};
        Passo(Scritto("Tutto", asse), [&] { pulsanti[static_cast<int>(asse)]->Click(); });
    }
    void Angolo(Asse asse, const std::string &testo, bool invio = true) {
        Passo(Scritto("Angolo", asse, testo, invio),
              [&] { ScriviIn(FormTelva.Angolo[static_cast<int>(asse)], testo, invio); });
    }
    void Trappola(const std::string &testo, bool applica = true) { // the whole dialog
        Passo(Scritto("Trappola", testo, applica), [&] {
            Voce("Trappola").Click();
            FormOptInt.TextTrappola.Text = testo;
            applica ? FormOptInt.Command1.Click() : FormOptInt.KeyUp(kEsc);
        });
    }
    // In a dialog.
    void Digita(CasellaTesto &casella, const std::string &testo) {
        Passo(Scritto("Digita", casella.NomeControllo(), testo), [&] { casella.Text = testo; });
    }
    void Premi(CasellaTesto &casella, int tasto) {
        Passo(Scritto("Premi", casella.NomeControllo(), tasto), [&] { casella.KeyDown(tasto); });
    }
    void Premi(Modulo &dialogo, int tasto) {
        Passo(Scritto("Premi", dialogo.NomeControllo(), tasto), [&] { dialogo.KeyUp(tasto); });
    }
    void Premi(CasellaSpunta &casella) {
        Passo(Scritto("Premi", casella.NomeControllo()), [&] { casella.Premi(); });
    }
    template <class ConClick>
    void Premi(ConClick &controllo) { // a button, a swatch
        Passo(Scritto("Premi", controllo.NomeControllo()), controllo.Click);
    }
    void Ridimensiona(double larghezza, double altezza) {
        Passo(Scritto("Ridimensiona", larghezza, altezza), [&] {
            FormTelva.Width = larghezza;
            FormTelva.Height = altezza;
            FormTelva.Resize();
            // The smallest size, when it is put back, comes as a resize of its own.
            if (FormTelva.Width() != larghezza || FormTelva.Height() != altezza) FormTelva.Resize();
        });
    }

    // Places in drawing units.
    void Muovi(double x, double y) {
        Passo(Scritto("Muovi", x, y), [&] { Disegno().MouseMove(0, 0, x, y); });
    }
    void Clic(double x, double y) { // left; the pointer goes there first
        Passo(Scritto("Clic", x, y), [&] {
            Disegno().MouseMove(0, 0, x, y);
            Disegno().MouseDown(kSinistro, 0, x, y);
        });
    }
    void ClicDestro(double x, double y) {
        Passo(Scritto("ClicDestro", x, y), [&] { Disegno().MouseDown(kDestro, 0, x, y); });
    }
    void PremiCentrale(double x, double y) {
        Passo(Scritto("PremiCentrale", x, y), [&] { Disegno().MouseDown(kCentrale, 0, x, y); });
    }
    void MuoviPremuto(double x, double y) { // with the middle button down
        Passo(Scritto("MuoviPremuto", x, y), [&] { Disegno().MouseMove(kCentrale, 0, x, y); });
    }
    void RilasciaCentrale() {
        Passo("RilasciaCentrale()", [] { Disegno().MouseUp(kCentrale, 0, 0, 0); });
    }
    void Trascina(const std::vector<Pixel> &pixel) { // with the middle button, from the first one
        Passo(Scritto("Trascina", pixel), [&] {
            RiquadroDisegno &d = Disegno();
            for (const Pixel &p : pixel) { // the scale goes with the picture
                const double x = d.XEvento(d.XDaPixel(p.x)), y = d.YEvento(d.YDaPixel(p.y));
                (&p == pixel.data() ? d.MouseDown : d.MouseMove)(kCentrale, 0, x, y);
            }
            d.MouseUp(kCentrale, 0, 0, 0);
        });
    }
    void DoppioClic() {
        Passo("DoppioClic()", [] { Disegno().DblClick(); });
    }
    void PerdiIlMouse() { // another window takes it
        Passo("PerdiIlMouse()", [] { Disegno().CatturaPersa(); });
    }
    void Rotella(int passi) {
        Passo(Scritto("Rotella", passi), [&] { FormTelva.Rotella(passi); });
    }

    // --- what is seen
    std::string Funzione() const { return FormTelva.FunAttiva.Caption; }
    std::string SottoFunzione() const { return FormTelva.SottoFunAttiva.Caption; }
    std::string Uscita() const { return Leggi("lavori/prova1/TelvaOut.txt"); }
    // The messages since the last look: "ERRORE: text; ...".
    std::string Detto() {
        std::string detto;
        for (const Messaggio &m : messaggi) {
            const std::size_t inizio = m.testo.find_first_not_of(' ');
            const std::size_t fine = m.testo.find_last_not_of(' ');
            Aggiungi(detto, m.titolo + ": " + m.testo.substr(inizio, fine + 1 - inizio));
        }
        messaggi.clear();
        return detto;
    }
};

} // namespace telva::prove
