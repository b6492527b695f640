#include "ui/comandi.h"

#include "selection/attributi_sel.h"
#include "selection/schede_sel.h"
#include "selection/selezione.h"
#include "ui/Disegno_gestori.h"
#include "ui/FormTelva_gestori.h"
#include "ui/controlli/FormTelva.h"
#include "ui/figure_menu.h"
#include "ui/gesto.h"
#include "ui/icone.h"
#include "ui/vista_gestori.h"
#include "view/colori.h"

namespace telva {
namespace {

template <std::int16_t Codice>
void Colore() {
    FinisciGesti();
    SelezionaPerColore(Codice, SegnoFunzione());
}
template <std::int16_t Codice>
void Punto() {
    FinisciGesti();
    SelezionaPerTipoPunto(Codice, SegnoFunzione());
}
template <std::int16_t Codice>
void Linea() {
    FinisciGesti();
    SelezionaPerTipoLinea(Codice, SegnoFunzione());
}
template <std::int16_t Codice>
void Retino() {
    FinisciGesti();
    SelezionaPerTratteggio(Codice, SegnoFunzione());
}
template <std::uint8_t Codice>
void Scheda() {
    FinisciGesti();
    IniziaProprieta(Codice);
}

// Items that pass a code and show what it stands for.
constexpr Comando ConFigura(VoceMenu &voce, const char *didascalia, void (*gestore)(),
                            FiguraVoce figura) {
    return {&voce, 2, didascalia, 0, gestore, nullptr, nullptr, false, figura};
}
template <std::int16_t Codice>
constexpr Comando VoceColore(VoceMenu &voce) {
    return ConFigura(voce, kColori[Codice].nome, Colore<Codice>,
                     {FiguraVoce::Genere::Colore, Codice});
}
template <std::int16_t Codice>
constexpr Comando VoceLinea(VoceMenu &voce, const char *didascalia) {
    return ConFigura(voce, didascalia, Linea<Codice>, {FiguraVoce::Genere::Linea, Codice});
}
template <std::int16_t Codice>
constexpr Comando VoceRetino(VoceMenu &voce, const char *didascalia) {
    return ConFigura(voce, didascalia, Retino<Codice>, {FiguraVoce::Genere::Retino, Codice});
}

ModuloTelva &f = FormTelva;

constinit const Comando kComandi[] = {
    {&f.File, 0, "&File"},
    {&f.Salva, 1, "&Aggiorna ed Esci", 'G', Salva_Click, "AggiornaEsci", "Aggiorna ed esci"},
    {&f.Esci, 1, "&Esci", 'E', Esci_Click, "Esci", "Esci"},
    {&f.Visualizza, 0, "&Visualizza"},
    {&f.Ottimizza, 1, "&Ottimizza", 'O', Ottimizza_Click, "Ottimizza", "Ottimizza", true},
    {&f.ZoomIn, 1, "&Zoom", 'Z', ZoomIn_Click, "Zoom", "Zoom"},
    {&f.Sposta, 1, "&Sposta", 'S', Sposta_Click, "Sposta", "Sposta"},
    {&f.Ridis, 1, "&Ridisegna", 'R', Ridis_Click, "Ridisegna", "Ridisegna"},
    {&f.Operazioni, 0, "&Operazioni"},
    {&f.Aggiungi, 1, "&Aggiungi", 'A', Aggiungi_Click, "Aggiungi", "Aggiungi selezione", true},
    {&f.Rimuovi, 1, "&Rimuovi", 'T', Rimuovi_Click, "Rimuovi", "Rimuovi selezione"},
    {&f.RimTutto, 1, "Ri&muovi tutto", 0, RimTutto_Click, "RimuoviTutto", "Rimuovi tutto"},
    {&f.Inverti, 1, "In&verti selezione", 0, Inverti_Click, "InvertiSel", "Inverti selezione"},
    {&f.Interrompi, 1, "&Interrompi", 0, Interrompi_Click, "Interrompi", "Interrompi"},
    {&f.Selezioni, 0, "&Selezioni"},
    {&f.Finestra, 1, "&Finestra", 0, Finestra_Click},
    {&f.Colore, 1, "&Colore"},
    VoceColore<kBianco>(f.Bianco),
    VoceColore<kBlu>(f.Blu),
    VoceColore<kRosso>(f.Rosso),
    VoceColore<kVerde>(f.Verde),
    VoceColore<kGiallo>(f.Giallo),
    VoceColore<kVerdeScuro>(f.VerdeScuro),
    VoceColore<kMagenta>(f.Magenta),
    VoceColore<kAzzurro>(f.Azzurro),
    VoceColore<kArancione>(f.Arancione),
    ConFigura(f.TuttiCol, "Tutti", Colore<kOgniColore>, {FiguraVoce::Genere::Colore, kOgniColore}),
    {&f.TipoPunto, 1, "Tipo &punto"},
    {&f.TipoPt1, 2, "1", 0, Punto<0>},
    {&f.TipoPt2, 2, "2", 0, Punto<1>},
    {&f.TipoPt3, 2, "3", 0, Punto<2>},
    {&f.TipoPt4, 2, "4", 0, Punto<3>},
    {&f.TuttiPt, 2, "Tutti", 0, Punto<kOgniPunto>},
    {&f.TipoLinea, 1, "Tipo &linea"},
    VoceLinea<0>(f.TipoLn1, "1"),
    VoceLinea<1>(f.TipoLn2, "2"),
    VoceLinea<2>(f.TipoLn3, "3"),
    VoceLinea<3>(f.TipoLn4, "4"),
    VoceLinea<4>(f.TipoLn5, "5"),
    VoceLinea<kOgniLinea>(f.TuttiLn, "Tutti"),
    {&f.TipoTratt, 1, "Tipo &tratteggio"},
    VoceRetino<1>(f.TipoTr1, "1"),
    VoceRetino<2>(f.TipoTr2, "2"),
    VoceRetino<3>(f.TipoTr3, "3"),
    VoceRetino<4>(f.TipoTr4, "4"),
    VoceRetino<5>(f.TipoTr5, "5"),
    VoceRetino<6>(f.TipoTr6, "6"),
    VoceRetino<7>(f.TipoTr7, "7"),
    VoceRetino<8>(f.TipoTr8, "8"),
    VoceRetino<kOgniRetino>(f.TuttiTr, "Tutti"),
    {&f.Materiale, 1, "&Materiale", 0, Scheda<kMateriale>},
    {&f.SchSezione, 1, "Sezione", 0, Scheda<kSezione>},
    {&f.SchSpessore, 1, "Spessore", 0, Scheda<kSpessore>},
    {&f.SchOrientamento, 1, "Orientamento", 0, Scheda<kOrientamento>},
    {&f.SchSvincolo, 1, "Svincolo", 0, Scheda<kSvincolo>},
    {&f.SchVincolo, 1, "Vincolo", 0, Scheda<kVincolo>},
    {&f.Nome, 1, "N&ome elemento", 0, Scheda<kNome>},
    {&f.Tutto, 1, "T&utto", 0, Colore<kOgniColore>},
    {&f.Opzioni, 0, "Op&zioni"},
    {&f.VisCoord, 1, "&Visualizza Coordinate", 0, VisCoord_Click},
    {&f.VisAssi, 1, "Visualizza &Assi", 0, VisAssi_Click},
    {&f.BarraLat, 1, "&Barra laterale", 0, BarraLat_Click, "AggiungiBarraLat",
     "Attiva o disattiva la barra laterale", true},
    {&f.BarraIcone, 1, "Barra delle &icone", 0, BarraIcone_Click},
    {&f.Trappola, 1, "&Trappola...", 0, Trappola_Click},
    {&f.Rappresentazione, 1, "O&pzioni...", 0, Rappresentazione_Click},
};

} // namespace

std::span<const Comando> TabellaComandi() { return kComandi; }

void CostruisciComandi() {
    VoceMenu *capo[3] = {};
    f.barraMenu.clear();
    f.Toolbar1.Bottoni.clear();
    for (const Comando &c : kComandi) {
        c.voce->Caption = c.didascalia;
        c.voce->Enabled = true;
        c.voce->Checked = false;
        c.voce->scorciatoia = c.scorciatoia;
        c.voce->figura = c.figura;
        if (c.gestore) c.voce->Click = c.gestore;
        c.voce->voci.clear();
        capo[c.livello] = c.voce;
        if (c.livello == 0)
            f.barraMenu.push_back(c.voce);
        else
            capo[c.livello - 1]->voci.push_back(c.voce);
        if (c.chiave)
            f.Toolbar1.Bottoni.push_back({c.chiave, c.suggerimento, c.voce, c.nuovoGruppo});
    }
    for (VoceMenu *v : {&f.VisCoord, &f.VisAssi, &f.BarraLat, &f.BarraIcone}) v->Checked = true;
    DisabilitaComandi();
    f.Interrompi.Enabled = false;
    f.Toolbar1.ButtonClick = EseguiChiave;
    f.Toolbar1.FiguraBottone = DisegnaIcona;
    f.FiguraMenu = DisegnaFigura;
}

void EseguiChiave(const std::string &chiave) {
    for (const Comando &c : kComandi)
        if (c.chiave && chiave == c.chiave) {
            c.gestore();
            return;
        }
}

} // namespace telva
