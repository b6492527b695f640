#include "sostegno/Utente.h"

#include "selection/selezione.h"
#include "ui/controlli/FormOptInt.h"
#include "ui/controlli/FormTelva.h"
#include "ui/gesto.h"

#include <algorithm>
#include <stdexcept>

namespace telva::prove {
namespace {

constexpr int kInvio = 13, kTastoEsc = 27;
constexpr int kSinistro = 1, kDestro = 2, kCentrale = 4;

CasellaTesto &Casella(Estremo estremo) {
    ModuloTelva &f = FormTelva;
    CasellaTesto *const caselle[] = {&f.IntX[0], &f.IntX[1], &f.IntY[0],
                                     &f.IntY[1], &f.IntZ[0], &f.IntZ[1]};
    return *caselle[static_cast<int>(estremo)];
}

CasellaSpunta &Casella(Filtro filtro) {
    ModuloTelva &f = FormTelva;
    CasellaSpunta *const caselle[] = {&f.NodiAtt, &f.AsteAtt, &f.GusciAtt, &f.ElSelez,
                                      &f.ElNonSelez};
    return *caselle[static_cast<int>(filtro)];
}

void ScriviIn(CasellaTesto &casella, const std::string &testo, bool invio) {
    casella.Text = testo;
    if (invio) casella.KeyDown(kInvio);
}

VoceMenu &Voce(const std::string &nome) {
    const auto voce = std::ranges::find(FormTelva.voci, nome, &VoceMenu::NomeControllo);
    if (voce == FormTelva.voci.end()) throw std::logic_error("there is no item " + nome);
    return **voce;
}

void Aggiungi(std::string &elenco, const std::string &voce) {
    elenco += (elenco.empty() ? "" : " ") + voce;
}

} // namespace

void Utente::Menu(const std::string &voce) {
    const VoceMenu &v = Voce(voce);
    if (!v.Click) return; // opens its own items
    if (!v.Enabled) throw std::logic_error("the item " + voce + " is disabled");
    Passo(Scritto("Menu", voce), v.Click);
}

void Utente::Barra(const std::string &chiave) {
    Passo(Scritto("Barra", chiave), [&] { FormTelva.Toolbar1.ButtonClick(chiave); });
}

void Utente::Esc() {
    Passo("Esc()", [] { FormTelva.KeyPress(kTastoEsc); });
}

void Utente::Lettera(char c) {
    Passo(Scritto("Lettera", std::string(1, c)), [&] { FormTelva.KeyPress(c); });
}

bool Utente::Tasto(int codice) {
    bool usato = false;
    Passo(Scritto("Tasto", codice), [&] { usato = FormTelva.KeyDown(codice); });
    return usato;
}

void Utente::Tipo(int tipo) {
    Passo(Scritto("Tipo", tipo), [&] { FormTelva.OptElem[tipo].Seleziona(); });
}

void Utente::Elenco(const std::string &testo) {
    if (!FormTelva.Risposta.Enabled) throw std::logic_error("no list is asked for");
    Passo(Scritto("Elenco", testo), [&] { ScriviIn(FormTelva.Risposta, testo, true); });
}

void Utente::Invio() {
    Passo("Invio()", [] { FormTelva.Risposta.KeyDown(kInvio); });
}

void Utente::Mostra(Filtro filtro) {
    static const char *const kNomi[] = {"Nodi", "Aste", "Gusci", "Selezionati", "NonSelezionati"};
    Passo(std::string("Mostra(Filtro::") + kNomi[static_cast<int>(filtro)] + ")",
          [&] { Casella(filtro).Premi(); });
}

void Utente::Intervallo(Estremo estremo, const std::string &testo, bool invio) {
    static const char *const kNomi[] = {"MinX", "MaxX", "MinY", "MaxY", "MinZ", "MaxZ"};
    Passo(std::string("Intervallo(Estremo::") + kNomi[static_cast<int>(estremo)] + ", \"" + testo +
              (invio ? "\")" : "\", false)"),
          [&] { ScriviIn(Casella(estremo), testo, invio); });
}

void Utente::Tutto(Asse asse) {
    Pulsante *const pulsanti[] = {&FormTelva.TuttoX, &FormTelva.TuttoY, &FormTelva.TuttoZ};
    Passo(std::string("Tutto(Asse::") + "XYZ"[static_cast<int>(asse)] + ")",
          [&] { pulsanti[static_cast<int>(asse)]->Click(); });
}

void Utente::Angolo(Asse asse, const std::string &testo, bool invio) {
    Passo(std::string("Angolo(Asse::") + "XYZ"[static_cast<int>(asse)] + ", \"" + testo +
              (invio ? "\")" : "\", false)"),
          [&] { ScriviIn(FormTelva.Angolo[static_cast<int>(asse)], testo, invio); });
}

void Utente::Trappola(const std::string &testo, bool applica) {
    Passo("Trappola(\"" + testo + (applica ? "\")" : "\", false)"), [&] {
        Voce("Trappola").Click();
        FormOptInt.TextTrappola.Text = testo;
        applica ? FormOptInt.Command1.Click() : FormOptInt.KeyUp(kTastoEsc);
    });
}

void Utente::Ridimensiona(double larghezza, double altezza) {
    Passo(Scritto("Ridimensiona", larghezza, altezza), [&] {
        FormTelva.Width = larghezza;
        FormTelva.Height = altezza;
        FormTelva.Resize();
    });
}

void Utente::Muovi(double x, double y) {
    Passo(Scritto("Muovi", x, y), [&] { FormTelva.Disegno.MouseMove(0, 0, x, y); });
}

void Utente::Clic(double x, double y) {
    Passo(Scritto("Clic", x, y), [&] {
        FormTelva.Disegno.MouseMove(0, 0, x, y);
        FormTelva.Disegno.MouseDown(kSinistro, 0, x, y);
    });
}

void Utente::ClicDestro(double x, double y) {
    Passo(Scritto("ClicDestro", x, y), [&] { FormTelva.Disegno.MouseDown(kDestro, 0, x, y); });
}

void Utente::PremiCentrale(double x, double y) {
    Passo(Scritto("PremiCentrale", x, y), [&] { FormTelva.Disegno.MouseDown(kCentrale, 0, x, y); });
}

void Utente::MuoviPremuto(double x, double y) {
    Passo(Scritto("MuoviPremuto", x, y), [&] { FormTelva.Disegno.MouseMove(kCentrale, 0, x, y); });
}

void Utente::RilasciaCentrale() {
    Passo("RilasciaCentrale()", [] { FormTelva.Disegno.MouseUp(kCentrale, 0, 0, 0); });
}

void Utente::Trascina(const std::vector<Pixel> &pixel) {
    std::string luoghi;
    for (const Pixel &p : pixel)
        luoghi +=
            (luoghi.empty() ? "{" : ", {") + std::to_string(p.x) + ", " + std::to_string(p.y) + "}";
    Passo("Trascina({" + luoghi + "})", [&] {
        RiquadroDisegno &d = FormTelva.Disegno;
        for (const Pixel &p : pixel) { // the scale goes with the picture
            const double x = d.XEvento(d.XDaPixel(p.x)), y = d.YEvento(d.YDaPixel(p.y));
            (&p == pixel.data() ? d.MouseDown : d.MouseMove)(kCentrale, 0, x, y);
        }
        d.MouseUp(kCentrale, 0, 0, 0);
    });
}

void Utente::DoppioClic() {
    Passo("DoppioClic()", [] { FormTelva.Disegno.DblClick(); });
}

void Utente::PerdiIlMouse() {
    Passo("PerdiIlMouse()", [] { FormTelva.Disegno.CatturaPersa(); });
}

void Utente::Rotella(int passi) {
    Passo(Scritto("Rotella", passi), [&] { FormTelva.Rotella(passi); });
}

std::string Utente::Funzione() const { return FormTelva.FunAttiva.Caption; }
std::string Utente::SottoFunzione() const { return FormTelva.SottoFunAttiva.Caption; }
std::string Utente::Coordinate() const { return FormTelva.LabCoord.Caption; }
std::string Utente::Uscita() const { return Leggi("lavori/prova1/TelvaOut.txt"); }

std::string Utente::Gesto() const {
    std::string accesi;
    if (PrimoAngolo) Aggiungi(accesi, "PrimoAngolo");
    if (SpostaInCorso) Aggiungi(accesi, "SpostaInCorso");
    if (ModoZoom) Aggiungi(accesi, "ModoZoom");
    if (ModoSposta) Aggiungi(accesi, "ModoSposta");
    if (FinestraAutomatica) Aggiungi(accesi, "FinestraAutomatica");
    return accesi;
}

std::string Utente::Elastici() const {
    std::string visibili;
    if (FormTelva.Disegno.Shape.Visible) Aggiungi(visibili, "rettangolo");
    if (FormTelva.Disegno.LineSposta.Visible) Aggiungi(visibili, "linea");
    return visibili;
}

std::string Utente::Detto() {
    std::string detto;
    for (const Messaggio &m : messaggi) {
        const std::size_t inizio = m.testo.find_first_not_of(' ');
        const std::size_t fine = m.testo.find_last_not_of(' ');
        Aggiungi(detto, m.titolo + ": " + m.testo.substr(inizio, fine + 1 - inizio));
    }
    messaggi.clear();
    return detto;
}

std::string Utente::SelezioniPossibili() const {
    std::string possibili;
    for (const VoceMenu *voce : FormTelva.Selezioni.voci)
        if (voce->Enabled) Aggiungi(possibili, voce->NomeControllo());
    return possibili;
}

} // namespace telva::prove
