// The main window: layout at every size, the two bars, the picture that follows.
#include "sostegno/Utente.h"
#include "ui/controlli/FormOpt.h"
#include "ui/controlli/FormTelva.h"

namespace telva::prove {

struct FormTelvaProva : Utente {
    ModuloTelva &f = FormTelva;
    FormTelvaProva() { Apri(Telaio()); }

    struct Posto {
        std::string nome;
        double left, top, width, height;
        bool operator==(const Posto &) const = default;
        friend void PrintTo(const Posto &p, std::ostream *os) {
            *os << p.nome << " at " << p.left << "," << p.top << " size " << p.width << "x"
                << p.height;
        }
    };
    std::vector<Posto> Posti() const {
        std::vector<Posto> posti;
        for (const Controllo *c : f.controlli)
            posti.push_back({c->NomeControllo(), c->Left, c->Top, c->Width, c->Height});
        return posti;
    }
    void Barre(bool laterale, bool icone) {
        if (f.BarraLat.Checked != laterale) Menu("BarraLat");
        if (f.BarraIcone.Checked != icone) Menu("BarraIcone");
    }
};

TEST_F(FormTelvaProva, OgniControlloHaIlSuoPostoAOgniMisura) {
    struct Caso {
        double larghezza, altezza;
        bool laterale, icone;
    };
    const Caso casi[] = {{.larghezza = 5550, .altezza = 7120, .laterale = true, .icone = true},
                         {.larghezza = 15000, .altezza = 11400, .laterale = true, .icone = true},
                         {.larghezza = 6000, .altezza = 20000, .laterale = false, .icone = true},
                         {.larghezza = 15000, .altezza = 7120, .laterale = true, .icone = false},
                         {.larghezza = 5550, .altezza = 11400, .laterale = false, .icone = false}};
    for (const auto &[w, h, laterale, icone] : casi) {
        Barre(laterale, icone);
        Ridimensiona(w, h);
        EXPECT_EQ(f.FrameInput.Width, w - 180);
        EXPECT_EQ(f.Disegno.Width, laterale ? w - 3024 : w - 124);
        EXPECT_EQ(f.StringaSel.Width, w - 4464);
        EXPECT_EQ(f.FrameCoord.Width, w - 5550);
        EXPECT_EQ(f.Risposta.Left, f.FrameInput.Width - 2600);
        EXPECT_EQ(f.LabCoord.Left, f.FrameCoord.Width - 1000);
        EXPECT_EQ(f.FrameSel.Left, f.Disegno.Left + f.Disegno.Width + 50);
        EXPECT_EQ(f.FrameAtt.Left, f.FrameSel.Left());
        EXPECT_EQ(f.Disegno.Height, icone ? h - 2700 : h - 2300);
        EXPECT_EQ(f.StringaSel.Top, f.Disegno.Top + f.Disegno.Height + 80);
        EXPECT_EQ(f.Label5.Top, f.StringaSel.Top());
        EXPECT_EQ(f.Frame2.Top, f.StringaSel.Top + f.StringaSel.Height + 50);
        EXPECT_EQ(f.FrameCoord.Top, f.Frame2.Top());
        for (int k = 0; k < 3; ++k) {
            EXPECT_EQ(f.Angolo[k].Top, f.StringaSel.Top());
            EXPECT_EQ(f.Label1[k].Top, f.StringaSel.Top());
            EXPECT_EQ(f.Label2[k].Top, f.StringaSel.Top + 100);
        }
        EXPECT_EQ(f.Toolbar1.Visible, icone);
        EXPECT_EQ(f.FrameSel.Visible, laterale);
        EXPECT_EQ(f.FrameAtt.Visible, laterale);
    }
}

TEST_F(FormTelvaProva, SottoIlMinimoLaFinestraTornaAlMinimoSenzaDisporsi) {
    struct Caso {
        double larghezza, altezza, larghezzaNuova, altezzaNuova;
    };
    for (const Caso &c :
         {Caso{5549, 9000, 5550, 9000}, Caso{9000, 7119, 9000, 7120}, Caso{99, 99, 5550, 7120}}) {
        const auto prima = Posti();
        Ridimensiona(c.larghezza, c.altezza);
        EXPECT_EQ(f.Width, c.larghezzaNuova);
        EXPECT_EQ(f.Height, c.altezzaNuova);
        EXPECT_EQ(Posti(), prima);
    }
}

TEST_F(FormTelvaProva, RidottaAIconaLaFinestraRestaComEra) {
    const auto prima = Posti();
    f.ridotta = true;
    Ridimensiona(99, 99);
    EXPECT_EQ(f.Width, 99) << "an icon has no smallest size";
    EXPECT_EQ(Posti(), prima);
    f.ridotta = false;
    Ridimensiona(15000, 11400);
    EXPECT_EQ(Posti(), prima);
}

// The structure fills the new box, in its middle, and is not distorted.
TEST_F(FormTelvaProva, IlDisegnoSeguePerInteroLaNuovaMisura) {
    RiquadroDisegno &d = f.Disegno;
    const auto controlla = [&] {
        EXPECT_EQ(d.Immagine().Larghezza(), d.LarghezzaPixel());
        EXPECT_EQ(d.Immagine().Altezza(), d.AltezzaPixel());
        EXPECT_NEAR(d.ScalaX(), -d.ScalaY(), 1e-9 * d.ScalaX()) << "square pixels";
        EXPECT_NEAR(d.XPixel(0) + d.XPixel(200), d.LarghezzaPixel(), 0.02 * d.LarghezzaPixel());
        EXPECT_NEAR(d.YPixel(0) + d.YPixel(200), d.AltezzaPixel(), 0.02 * d.AltezzaPixel());
        const double largo = (d.XPixel(200) - d.XPixel(0)) / d.LarghezzaPixel();
        const double alto = (d.YPixel(0) - d.YPixel(200)) / d.AltezzaPixel();
        EXPECT_NEAR(std::max(largo, alto), 1 / 1.21, 0.02) << "a tenth is left on either side";
    };
    struct Misura {
        double larghezza, altezza;
    };
    for (const Misura &m : {Misura{15000, 7120}, Misura{5550, 20000}, Misura{9000, 9000}}) {
        Ridimensiona(m.larghezza, m.altezza);
        controlla();
    }
    for (const char *barra : {"BarraLat", "BarraIcone", "BarraLat", "BarraIcone"}) {
        Menu(barra);
        controlla();
    }
}

TEST_F(FormTelvaProva, LaBarraDelleIconeDaIlSuoPostoAlDisegno) {
    const double disegno = f.Disegno.Top, ingresso = f.FrameInput.Top, sel = f.FrameSel.Top,
                 att = f.FrameAtt.Top, altezza = f.Disegno.Height;
    Menu("BarraIcone");
    EXPECT_FALSE(f.Toolbar1.Visible);
    EXPECT_FALSE(f.BarraIcone.Checked);
    EXPECT_EQ(f.Disegno.Top, disegno - 400);
    EXPECT_EQ(f.FrameInput.Top, ingresso - 400);
    EXPECT_EQ(f.FrameSel.Top, sel - 400);
    EXPECT_EQ(f.FrameAtt.Top, att - 400);
    EXPECT_EQ(f.Disegno.Height, altezza + 400);
}

TEST_F(FormTelvaProva, LaBarraLateraleDaIlSuoPostoAlDisegno) {
    EXPECT_EQ(f.Toolbar1.Suggerimento("AggiungiBarraLat"), "Attiva o disattiva la barra laterale");
    Menu("BarraLat");
    EXPECT_EQ(f.Disegno.Width, f.Width - 124);
    EXPECT_EQ(f.Toolbar1.Suggerimento("AggiungiBarraLat"), "Aggiunge la barra laterale");
    EXPECT_FALSE(f.BarraLat.Checked);
    Menu("BarraLat");
    EXPECT_EQ(f.Disegno.Width, f.Width - 3024);
    EXPECT_EQ(f.Toolbar1.Suggerimento("AggiungiBarraLat"), "Toglie la barra laterale");
    EXPECT_TRUE(f.BarraLat.Checked);
}

TEST_F(FormTelvaProva, LeBarreTornanoAlLoroPosto) {
    const auto prima = Posti();
    for (const bool ridimensiona : {false, true}) // as minimising and restoring does
        for (const char *barra : {"BarraIcone", "BarraLat", "BarraIcone"}) {
            Menu(barra);
            if (ridimensiona) Ridimensiona(f.Width, f.Height);
            Menu(barra);
            EXPECT_EQ(Posti(), prima);
        }
}

// --- the window system, as far as the forms ask for it

struct Schermo : SistemaFinestre {
    std::vector<std::string> fatto;
    std::string fuoco; // of the dialog that was opened last
    Schermo() { ImpostaSistemaFinestre(this); }
    ~Schermo() override { ImpostaSistemaFinestre(nullptr); }
    void Prepara(Modulo &m) override { fatto.push_back("prepara " + m.NomeControllo()); }
    void Mostra(Modulo &m) override { fatto.push_back("mostra " + m.NomeControllo()); }
    void MostraModale(Modulo &m) override {
        fatto.push_back("modale " + m.NomeControllo());
        fuoco = m.fuoco ? m.fuoco->NomeControllo() : "";
    }
    void Chiudi(Modulo &m) override { fatto.push_back("chiudi " + m.NomeControllo()); }
    void MostraPopup(Modulo &, VoceMenu &menu) override {
        fatto.push_back("popup " + menu.NomeControllo());
    }
    std::vector<std::string> Fatto() { return std::exchange(fatto, {}); }
};
using Fatti = std::vector<std::string>;

TEST_F(FormTelvaProva, LaXChiudeLaFinestraEIlDialogoAperto) {
    Schermo schermo;
    f.Mostra();
    EXPECT_EQ(schermo.Fatto(), Fatti{"mostra FormTelva"});
    EXPECT_TRUE(f.Mostrata());
    Menu("Rappresentazione");
    EXPECT_EQ(schermo.Fatto(), Fatti{"modale FormOpt"});
    f.Chiudi(); // what the window system calls for its X
    EXPECT_EQ(schermo.Fatto(), (Fatti{"chiudi FormOpt", "chiudi FormTelva"}));
    EXPECT_FALSE(f.Mostrata());
    f.Chiudi();
    EXPECT_EQ(schermo.Fatto(), Fatti{}) << "a window closes once";
}

TEST_F(FormTelvaProva, UnDialogoSiApreConIlFuocoDoveSiScrive) {
    Schermo schermo;
    Menu("Trappola");
    EXPECT_EQ(schermo.Fatto(), Fatti{"modale FormOptInt"});
    EXPECT_EQ(schermo.fuoco, "TextTrappola");
    Menu("Rappresentazione");
    EXPECT_EQ(schermo.Fatto(), Fatti{"modale FormOpt"});
    EXPECT_EQ(schermo.fuoco, "CheckSpGus");
    FormOpt.Chiudi();
}

TEST_F(FormTelvaProva, UnaRichiestaDiElencoHaIlFuocoEIlTastoDestroIlMenuDellaVista) {
    Schermo schermo;
    ClicDestro(0, 0);
    EXPECT_EQ(schermo.Fatto(), Fatti{"popup Visualizza"});
    Menu("Aggiungi");
    Menu("Nome");
    EXPECT_EQ(f.fuoco, &f.Risposta);
    EXPECT_EQ(f.Risposta.BackColor, kColoreFinestra);
    Esc();
    EXPECT_EQ(f.Risposta.BackColor, kColoreFaccia);
}

} // namespace telva::prove
