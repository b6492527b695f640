// The two options dialogs, opened from their menu items.
#include "model/opzioni_cond.h"
#include "sostegno/Composta.h"
#include "sostegno/Utente.h"
#include "ui/controlli/FormOpt.h"
#include "ui/controlli/FormOptInt.h"
#include "ui/controlli/FormTelva.h"
#include "view/colori.h"

namespace telva::prove {

// --- pick aperture

struct DialogoTrappola : Utente {
    DialogoTrappola() { Apri(Telaio()); }
};

TEST_F(DialogoTrappola, SiApreConLaMisuraDiOraEInvioLApplica) {
    Menu("Trappola");
    EXPECT_TRUE(FormOptInt.Mostrata());
    EXPECT_EQ(FormOptInt.TextTrappola.Text(), "8");
    EXPECT_EQ(FormOptInt.fuoco, &FormOptInt.TextTrappola);
    Digita(FormOptInt.TextTrappola, "-19,6"); // its nearest lower whole number, without the sign
    Premi(FormOptInt.TextTrappola, '2');      // any other key only types
    EXPECT_TRUE(FormOptInt.Mostrata());
    Premi(FormOptInt.TextTrappola, kInvio);
    EXPECT_FALSE(FormOptInt.Mostrata());
    Menu("Trappola");
    EXPECT_EQ(FormOptInt.TextTrappola.Text(), "20");
    Premi(FormOptInt, 'A');
    EXPECT_TRUE(FormOptInt.Mostrata()) << "only Esc closes";
    Digita(FormOptInt.TextTrappola, "0");
    Premi(FormOptInt, kEsc);
    EXPECT_FALSE(FormOptInt.Mostrata());
    EXPECT_EQ(OpzInt[kOpzTrappola], 20) << "Esc leaves it as it was";
    EXPECT_EQ(Detto(), "");
    OpzInt[kOpzTrappola] = 2e20;
    Menu("Trappola");
    EXPECT_EQ(FormOptInt.TextTrappola.Text(), "2e+20") << "short in the box";
    Premi(FormOptInt.TextTrappola, kInvio);
    EXPECT_EQ(FormTelva.Trappola.Caption(), "Trappola (2e+20)...");
}

// --- representation options

template <class Casella>
struct VoceOpzioni {
    Casella &casella;
    int voce; // entry of the options
};

struct DialogoRappresentazione : Utente {
    ModuloOpt &f = FormOpt;

    DialogoRappresentazione() {
        Apri(Telaio());
        for (const int testi : {kOpzTestiNodi, kOpzTestiAste, kOpzTestiGusci, kOpzTestiElCont})
            Opzioni[testi] = 0.0; // no labels, to begin with
    }
    ~DialogoRappresentazione() override { f.Chiudi(); }

    static std::vector<Valore> TutteLeOpzioni() { return {Opzioni.Dati(), Opzioni.Dati() + 30}; }
    // The dialog changes this entry alone, in the file too.
    void Cambia(const std::string &controllo, int voce, double valore,
                const std::function<void()> &cambia) {
        SCOPED_TRACE(controllo);
        auto attese = TutteLeOpzioni();
        attese[static_cast<std::size_t>(voce)] = valore;
        Menu("Rappresentazione");
        Passo(controllo + " = " + std::to_string(valore), cambia);
        Premi(f.Salva);
        Premi(f, kEsc);
        EXPECT_EQ(Detto(), "INFORMAZIONE: Opzioni salvate");
        EXPECT_FALSE(f.Mostrata());
        AzzeraOpzioni();
        LeggiOpzioni();
        const auto riletti = TutteLeOpzioni();
        for (std::size_t k = 0; k < attese.size(); ++k)
            EXPECT_EQ(riletti[k], attese[k]) << "entry " << k;
    }
};

TEST_F(DialogoRappresentazione, OgniControlloECambiaLaSuaVoceSoltanto) {
    std::vector<VoceOpzioni<CasellaSpunta>> spunte = {
        {.casella = f.CheckSpGus, .voce = kOpzNascondiSottili},
        {.casella = f.CheckTxtNodi, .voce = kOpzTestiNodi},
        {.casella = f.CheckTxtAste, .voce = kOpzTestiAste},
        {.casella = f.CheckTxtGusci, .voce = kOpzTestiGusci},
        {.casella = f.CheckTxtElCont, .voce = kOpzTestiElCont},
        {.casella = f.TxtElCont, .voce = kOpzNomeElCont}};
    for (int k = 0; k < 2; ++k)
        spunte.push_back({.casella = f.TxtNodi[k], .voce = kOpzPartiNodi + k});
    for (int k = 0; k < 5; ++k)
        spunte.push_back({.casella = f.TxtAste[k], .voce = kOpzPartiAste + k});
    for (int k = 0; k < 3; ++k)
        spunte.push_back({.casella = f.TxtGusci[k], .voce = kOpzPartiGusci + k});
    for (const VoceOpzioni<CasellaSpunta> &s : spunte) {
        const double opposto = OpzioneAttiva(s.voce) ? 0 : 1;
        Cambia(s.casella.NomeControllo(), s.voce, opposto, [&] { s.casella.Premi(); });
    }
    const VoceOpzioni<CasellaTesto> testi[] = {{.casella = f.SpMinGus, .voce = kOpzSpessoreMinimo},
                                               {.casella = f.SpNonSel, .voce = kOpzPennaNonSel},
                                               {.casella = f.SpSel, .voce = kOpzPennaSel},
                                               {.casella = f.Raggio, .voce = kOpzRaggioNodo},
                                               {.casella = f.BaseTxt, .voce = kOpzBaseTesto},
                                               {.casella = f.AltezzaTxt, .voce = kOpzAltezzaTesto},
                                               {.casella = f.DistTxt, .voce = kOpzDistanzaTesto}};
    for (const VoceOpzioni<CasellaTesto> &t : testi)
        Cambia(t.casella.NomeControllo(), t.voce, 12.5, [&] { t.casella.Text = "12.5cm"; });
    for (const int colore : {kNumeroColori - 1, +kNero, +kVerde})
        Cambia(f.LabelCol[colore].NomeControllo(), kOpzColoreTesto, colore,
               [&] { f.LabelCol[colore].Click(); });
    Cambia("EvColNonSel", kOpzColoreSel, 0, [&] { f.EvColNonSel.Seleziona(); });
    Cambia("EvColSel", kOpzColoreSel, 1, [&] { f.EvColSel.Seleziona(); });
}

TEST_F(DialogoRappresentazione, UnColoreSconosciutoSiMostraBiancoUnTestoComE) {
    for (const double codice : {-1.0, double{kNumeroColori}, 1e9}) {
        Opzioni[kOpzColoreTesto] = codice;
        Opzioni[kOpzRaggioNodo] = std::string("x"); // as it stands in the file
        Opzioni[kOpzBaseTesto] = 2e20;
        Menu("Rappresentazione");
        EXPECT_EQ(f.Raggio.Text(), "x");
        EXPECT_EQ(f.BaseTxt.Text(), "2e+20");
        for (int k = 0; k < ModuloOpt::kCampioni; ++k)
            EXPECT_EQ(f.LabelBordCol[k].Marcato, k == kBianco) << codice;
        f.Chiudi();
    }
}

TEST_F(DialogoRappresentazione, OgniCampioneHaIlColoreCheSceglie) {
    Menu("Rappresentazione");
    for (int scelto = 0; scelto < ModuloOpt::kCampioni; ++scelto) {
        Premi(f.LabelCol[scelto]);
        EXPECT_NE(f.LabelCol[scelto].didascalia, "") << "for those who do not see it";
        EXPECT_EQ(f.LabelCol[scelto].BackColor, ColoreRGB(scelto)) << "as the labels are drawn";
        for (int k = 0; k < ModuloOpt::kCampioni; ++k) {
            EXPECT_EQ(f.LabelCol[k].Marcato, k == scelto) << k << " while chosen is " << scelto;
            EXPECT_EQ(f.LabelBordCol[k].Marcato, k == scelto) << "the frame of " << k;
        }
    }
}

TEST_F(DialogoRappresentazione, SiPuoScrivereSoloCioCheVale) {
    Menu("Rappresentazione");
    EXPECT_EQ(f.predefinito, &f.Salva) << "what Enter presses";
    for (const bool nascosti : {true, false}) {
        EXPECT_EQ(f.CheckSpGus.Value, nascosti);
        EXPECT_EQ(f.SpMinGus.AbilitatoDavvero(), nascosti);
        EXPECT_EQ(f.LabelSpMinGus.AbilitatoDavvero(), nascosti);
        Premi(f.CheckSpGus);
    }

    struct Gruppo {
        CasellaSpunta &capo;
        const char *parti;
    };
    const Gruppo gruppi[] = {{.capo = f.CheckTxtNodi, .parti = "TxtNodi"},
                             {.capo = f.CheckTxtAste, .parti = "TxtAste"},
                             {.capo = f.CheckTxtGusci, .parti = "TxtGusci"},
                             {.capo = f.CheckTxtElCont, .parti = "TxtElCont"}};
    // Sizes and colours of the labels when there are any; the parts of those that there are.
    const auto controlla = [&](bool testi, const std::string &parti) {
        for (const Controllo *c : f.controlli) {
            const std::string &nome = c->NomeControllo();
            if (c->Genitore() != &f.FrameNum || nome.starts_with("Check")) continue;
            const bool parte = nome.starts_with("Txt");
            EXPECT_EQ(c->Enabled, parte ? testi && nome.starts_with(parti) : testi) << nome;
        }
    };
    controlla(false, "");
    for (const auto &[capo, parti] : gruppi) {
        SCOPED_TRACE(parti);
        Premi(capo);
        controlla(true, parti);
        Premi(capo);
        controlla(false, "");
    }
}

TEST_F(DialogoRappresentazione, SenzaMisuraDelTestoNienteTesti) {
    struct Caso {
        CasellaTesto &casella;
        int voce;
        bool testi; // still on
    };
    for (const auto &[casella, voce, testi] :
         {Caso{.casella = f.BaseTxt, .voce = kOpzBaseTesto, .testi = false},
          Caso{.casella = f.AltezzaTxt, .voce = kOpzAltezzaTesto, .testi = false},
          Caso{.casella = f.DistTxt, .voce = kOpzDistanzaTesto, .testi = true},
          Caso{.casella = f.Raggio, .voce = kOpzRaggioNodo, .testi = true}}) {
        SCOPED_TRACE(casella.NomeControllo());
        for (const int acceso : {kOpzTestiNodi, kOpzTestiAste, kOpzTestiGusci, kOpzTestiElCont})
            Opzioni[acceso] = 1.0;
        Menu("Rappresentazione");
        Digita(casella, "");
        Premi(f.Salva);
        Premi(f.Chiudi_);
        EXPECT_EQ(OpzioneNumero(voce), 0);
        EXPECT_EQ(OpzioneAttiva(kOpzTestiNodi), testi);
        EXPECT_EQ(OpzioneAttiva(kOpzTestiAste), testi);
        EXPECT_EQ(OpzioneAttiva(kOpzTestiGusci), testi);
        EXPECT_TRUE(OpzioneAttiva(kOpzTestiElCont));
    }
}

TEST_F(DialogoRappresentazione, IlDisegnoCambiaAllaChiusuraESoloDopoSalva) {
    const Superficie prima = FormTelva.Disegno.Immagine();
    const auto diversi = [&] { return PixelDiversi(prima, FormTelva.Disegno.Immagine()); };
    Menu("Rappresentazione");
    Digita(f.Raggio, "12");
    Premi(f.Chiudi_);
    EXPECT_FALSE(f.Mostrata());
    EXPECT_EQ(OpzioneNumero(kOpzRaggioNodo), 5) << "not saved";
    EXPECT_EQ(diversi(), 0);
    Menu("Rappresentazione");
    Digita(f.Raggio, "12");
    Premi(f.Salva);
    EXPECT_TRUE(f.Mostrata());
    EXPECT_EQ(diversi(), 0) << "until the dialog closes";
    Premi(f.Chiudi_);
    EXPECT_GT(diversi(), 0);
}

TEST_F(DialogoRappresentazione, UnFileCheNonSiScriveSiDice) {
    Cancella("custom");
    Menu("Rappresentazione");
    Premi(f.Salva);
    EXPECT_EQ(Detto(), "INFORMAZIONE: Problemi nel salvataggio delle opzioni");
    EXPECT_EQ(OpzioneNumero(kOpzRaggioNodo), 5) << "they hold all the same";
}

} // namespace telva::prove
