// What the three windows consist of. Where every control stands, immagini_prova looks at; names,
// captions and tips of all of them are read in the real windows.
#include "sostegno/Schermo.h"
#include "sostegno/Utente.h"
#include "ui/controlli/FormOpt.h"
#include "ui/controlli/FormOptInt.h"
#include "ui/controlli/FormTelva.h"
#include "view/visibile.h"

#include <memory>
#include <set>

namespace telva::prove {
namespace {

// What stands on a control of these kinds.
template <class... Generi>
const std::string *Scritta(const Controllo &c) {
    const std::string *scritta = nullptr;
    ((scritta =
          dynamic_cast<const Generi *>(&c) ? &dynamic_cast<const Generi &>(c).Caption() : scritta),
     ...);
    return scritta;
}

// Labels of what changes, frames that only group, and the one of a single row.
bool PuoTacere(const Controllo &c) {
    const auto *cornice = dynamic_cast<const Cornice *>(&c);
    if (cornice) return !cornice->bordo || &c == &FormOptInt.Frame1;
    return c.TipoControllo() == Tipo::Etichetta && !c.NomeControllo().starts_with("Label");
}

// Everything lies in the window and says what it is. That nothing lies over anything else, the
// floor plans show (immagini_prova) and, as that every text finds its room, the real windows.
void ControllaCheStiano(const Modulo &modulo) {
    constexpr double kRiga = 200; // twips, at the least
    for (const Controllo *a : modulo.controlli) {
        SCOPED_TRACE(modulo.NomeControllo() + "." + a->NomeControllo());
        if (!a->VisibileDavvero()) continue;
        EXPECT_GE(a->LeftAssoluto(), 0);
        EXPECT_GE(a->TopAssoluto(), 0);
        EXPECT_LE(a->LeftAssoluto() + a->Width, modulo.Width);
        EXPECT_LE(a->TopAssoluto() + a->Height, modulo.Height);
        EXPECT_GE(a->Height, kRiga);
        const std::string *scritta =
            Scritta<Pulsante, CasellaSpunta, BottoneOpzione, Etichetta, Cornice>(*a);
        if (scritta && !PuoTacere(*a)) {
            EXPECT_NE(*scritta, "");
        }
    }
}

} // namespace

struct ControlliProva : Utente {
    ModuloTelva &f = FormTelva;
    ControlliProva() { Apri(Telaio()); }
};

TEST_F(ControlliProva, OgniCasellaDellaFinestraFiltraLaVista) {
    for (Controllo *c : f.controlli)
        if (auto *casella = dynamic_cast<CasellaSpunta *>(c)) {
            SCOPED_TRACE(casella->NomeControllo());
            EXPECT_TRUE(casella->Click);
            casella->Value = false;
            EXPECT_TRUE(VistaFiltrata());
            casella->Value = true;
            EXPECT_FALSE(VistaFiltrata());
        }
}

TEST_F(ControlliProva, IDialoghi) {
    std::string aperti;
    Schermo schermo;
    // Of each of them the scenarios compare every control with a table (didascalie_dialoghi).
    for (const Modulo *modulo : std::initializer_list<Modulo *>{&FormOptInt, &FormOpt}) {
        aperti += (aperti.empty() ? "modale " : ", modale ") + modulo->NomeControllo();
        EXPECT_FALSE(modulo->ridimensionabile);
        ControllaCheStiano(*modulo);
    }
    for (const VoceMenu *v : f.voci)
        if (v->Enabled && v != &f.Salva && v != &f.Esci) Menu(v->NomeControllo());
    EXPECT_EQ(schermo.Fatto(), aperti) << "all that a command opens";
}

TEST(ModuloTelva, LaFinestraPrincipaleAllaNascita) {
    const auto nuova = std::make_unique<ModuloTelva>();
    ModuloTelva &f = *nuova;
    EXPECT_TRUE(f.ridimensionabile);
    EXPECT_EQ(f.Domanda.stile, StileEtichetta::ADestra) << "against the answer";
    for (int k = 0; k < 3; ++k) {
        EXPECT_TRUE(f.Angolo[k].stretta);
        const std::string asse(1, "XYZ"[k]);
        EXPECT_EQ(f.LabelAsse[k].Caption, asse);
        EXPECT_EQ(f.Label2[k].Caption, asse);
        EXPECT_EQ(f.Angolo[k].Text, k < 2 ? "30" : "0");
        EXPECT_NE(f.Angolo[k].ToolTipText().find("asse " + asse + ","), std::string::npos);
    }
    std::set<std::string> suggerimenti = {""}; // one of its own for every box and button but one
    for (const Controllo *c : f.controlli)
        if ((c->TipoControllo() == Tipo::CasellaTesto && c != &f.Risposta) ||
            c->TipoControllo() == Tipo::Pulsante) {
            EXPECT_TRUE(suggerimenti.insert(c->ToolTipText).second) << c->NomeControllo();
        }
    for (const auto *frame : {&f.FrameInput, &f.Frame2, &f.FrameCoord}) EXPECT_FALSE(frame->bordo);
}

TEST_F(ControlliProva, OgniControlloHaIlSuoPostoAOgniMisura) {
    struct Caso {
        double larghezza, altezza;
        bool laterale, icone, coordinate;
    };
    const Caso casi[] = {
        {.larghezza = 5550, .altezza = 7120, .laterale = true, .icone = true, .coordinate = true},
        {.larghezza = 6800, .altezza = 11400, .laterale = true, .icone = true, .coordinate = true},
        {.larghezza = 9000, .altezza = 8000, .laterale = true, .icone = true, .coordinate = false},
        {.larghezza = 5550, .altezza = 9999, .laterale = false, .icone = true, .coordinate = false},
        {.larghezza = 7000, .altezza = 7120, .laterale = true, .icone = false, .coordinate = false},
        {.larghezza = 6400, .altezza = 9000, .laterale = false, .icone = false, .coordinate = true},
    };
    for (const auto &[w, h, laterale, icone, coordinate] : casi) {
        Ridimensiona(w, h);
        // Each of them lays the window out again, and is the last one in some case.
        if (f.VisCoord.Checked != coordinate) Menu("VisCoord");
        if (f.BarraLat.Checked != laterale) Menu("BarraLat");
        if (f.BarraIcone.Checked != icone) Menu("BarraIcone");
        ControllaCheStiano(f);
        EXPECT_EQ(f.Disegno.Immagine().Larghezza(), f.Disegno.LarghezzaPixel());
        EXPECT_EQ(f.Disegno.Immagine().Altezza(), f.Disegno.AltezzaPixel());
    }
}

} // namespace telva::prove
