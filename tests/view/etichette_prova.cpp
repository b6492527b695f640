#include "model/opzioni_cond.h"
#include "model/struttura.h"
#include "platform/mostrabile.h"
#include "sostegno/Banco.h"
#include "sostegno/Composta.h"
#include "ui/controlli/FormTelva.h"
#include "view/FunzDisegno.h"
#include "view/etichette.h"
#include "view/inquadra.h"
#include "view/proiezione.h"
#include "view/visibile.h"

namespace telva::prove {
namespace {

// The options that say which labels there are, and which of their parts.
constexpr int kGeneri[] = {kOpzTestiNodi, kOpzTestiAste, kOpzTestiGusci, kOpzTestiElCont};
enum { kNomeNodo = kOpzPartiNodi, kVincolo };
enum { kNomeAsta = kOpzPartiAste, kMaterialeAsta, kSezione, kOrientamento, kSvincolo };
enum { kNomeGuscio = kOpzPartiGusci, kMaterialeGuscio, kSpessore };

// The frame from the front.
struct Etichette : Banco {
    RiquadroDisegno &d = FormTelva.Disegno;

    Etichette() {
        LavoroProva l = Telaio();
        for (auto &g : l.gusci) g.spessore = 1;
        l.sezioni[1] = 9;
        Apri(l);
        Opzioni[kOpzBaseTesto] = 2.0;
        Opzioni[kOpzAltezzaTesto] = 5.0;
        Opzioni[kOpzDistanzaTesto] = 2.0;
        Parti({});
    }
    void Generi(const std::vector<int> &accesi) {
        Nota(Scritto("Generi", accesi));
        for (const int genere : kGeneri) Opzioni[genere] = 0.0;
        for (const int genere : accesi) Opzioni[genere] = 1.0;
    }
    void TutteLeParti(double accese = 1.0) {
        Nota(Scritto("TutteLeParti", accese));
        for (int voce = kOpzPartiNodi; voce <= kOpzNomeElCont; ++voce) Opzioni[voce] = accese;
    }
    void Parti(const std::vector<int> &accese) {
        TutteLeParti(0.0);
        Nota(Scritto("Parti", accese));
        for (const int parte : accese) Opzioni[parte] = 1.0;
    }
    // Pixels that these kinds of labels add to the picture.
    int Scrive(const std::vector<int> &generi) {
        Generi({});
        DisegnaStruttura();
        const Superficie nuda = d.Immagine();
        Generi(generi);
        DisegnaStruttura();
        return PixelDiversi(nuda, d.Immagine());
    }
};

} // namespace

TEST_F(Etichette, IlTestoHaLePartiAccese) {
    struct Caso {
        std::vector<int> parti;
        const char *nodo, *asta, *guscio; // of node 5, bar 7, shell 3
    };
    const std::vector<int> nomi = {kNomeNodo, kNomeAsta, kNomeGuscio},
                           materiali = {kMaterialeAsta, kMaterialeGuscio},
                           schede = {kSezione, kSpessore},
                           altro = {kVincolo, kOrientamento, kSvincolo};
    for (const Caso &c : {Caso{.parti = {}, .nodo = "", .asta = "", .guscio = ""},
                          {.parti = nomi, .nodo = "N5", .asta = "A7", .guscio = "G3"},
                          {.parti = materiali, .nodo = "", .asta = "M9", .guscio = "M3"},
                          {.parti = schede, .nodo = "", .asta = "S2", .guscio = "S1"},
                          {.parti = altro, .nodo = "V1", .asta = "O7 C0", .guscio = ""}}) {
        Parti(c.parti);
        EXPECT_EQ(EtichettaNodo(4), c.nodo);
        EXPECT_EQ(EtichettaAsta(6), c.asta);
        EXPECT_EQ(EtichettaGuscio(2), c.guscio);
    }
    TutteLeParti();
    EXPECT_EQ(EtichettaAsta(6), "A7 M9 S2 O7 C0");
    NomeElCont[1] = "  Trave media ";
    EXPECT_EQ(EtichettaElCont(1), "20 - Trave media");
}

TEST_F(Etichette, SenzaPartiOSenzaAstaNonSiScriveNulla) {
    EXPECT_EQ(Scrive({kOpzTestiNodi, kOpzTestiAste, kOpzTestiGusci}), 0) << "no part is on";
    EXPECT_EQ(Scrive({kOpzTestiElCont}), 0) << "the name is off";
    TutteLeParti();
    NumElCont = 1;
    for (const int asta : {30000, 20001, -1}) {
        AsteElCont(0, 0) = static_cast<std::int16_t>(asta);
        EXPECT_EQ(Scrive({kOpzTestiElCont}), 0) << "no bar has the name " << asta;
    }
    NumAsteElCont[0] = 2;
    AsteElCont(0, 0) = 0;
    AsteElCont(0, 1) = 20001;
    EXPECT_EQ(Scrive({kOpzTestiElCont}), 0) << "its second bar is none";
    NumAsteElCont[0] = 1;
    NumeroElCont[0] = 0;
    EXPECT_EQ(Scrive({kOpzTestiElCont}), 0) << "an element without number";
}

TEST_F(Etichette, CioCheNonSiDisegnaNonHaEtichetta) {
    TutteLeParti();
    const std::pair<int, CasellaSpunta &> generi[] = {{kOpzTestiNodi, FormTelva.NodiAtt},
                                                      {kOpzTestiAste, FormTelva.AsteAtt},
                                                      {kOpzTestiGusci, FormTelva.GusciAtt},
                                                      {kOpzTestiElCont, FormTelva.AsteAtt}};
    for (const auto &[genere, spunta] : generi) {
        for (const bool mostrati : {false, true}) {
            spunta.Value = mostrati;
            CalcolaAttivi();
            EXPECT_EQ(Scrive({genere}) > 9, mostrati) << "labels of option " << genere;
        }
    }
}

TEST_F(Etichette, UnNomeLunghissimoSiTaglia) {
    NomeElCont[0] = std::string(4'000'000, 'x');
    EXPECT_LT(EtichettaElCont(0).size(), kCaratteriNome + 20);
}

} // namespace telva::prove
