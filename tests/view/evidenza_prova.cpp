// What is selected can be found: it lies over what is not of its own kind, and labels read over
// whatever they stand on.
#include "model/elementi.h"
#include "model/opzioni_cond.h"
#include "sostegno/Utente.h"
#include "ui/controlli/FormTelva.h"
#include "view/FunzDisegno.h"
#include "view/salva_dis_cond.h"

#include <algorithm>

namespace telva::prove {
namespace {

constexpr std::uint32_t kCiano = 0x00FFFF, kBianca = 0xFFFFFF, kRossa = 0xFF0000,
                        kVerdina = 0x00FF00; // pixels

// Bars 1 and 2 cross at (50, 50), shells 1 and 2 share the side x = 100, along which bar 3 runs;
// nodes 6 and 7 stand in one place. Bars are white, shells red, nodes green.
LavoroProva Incrocio() {
    LavoroProva l;
    l.punti = {{0, 0, 0}, {100, 0, 100}, {0, 0, 100}, {100, 0, 0}, {200, 0, 0}, {200, 0, 100}};
    for (int n = 0; n < 6; ++n) l.nodi.push_back({.punto = n, .nome = n + 1, .colore = 4});
    l.nodi.push_back({.punto = 5, .nome = 7, .colore = 4});
    l.aste = {
        {.i = 0, .j = 1, .nome = 1}, {.i = 2, .j = 3, .nome = 2}, {.i = 3, .j = 1, .nome = 3}};
    l.gusci = {{.nodi = {0, 3, 1, 2}, .nome = 1, .colore = 3},
               {.nodi = {3, 4, 5, 1}, .nome = 2, .colore = 3}};
    return l;
}

struct CasoOrdine {
    const char *che;
    int tipo;
    const char *selezionato;
    double x, y; // drawing units
    std::uint32_t atteso;
};

const CasoOrdine kCasiOrdine[] = {
    {.che = "a bar over a later one",
     .tipo = kAsteTipo,
     .selezionato = "1",
     .x = 50,
     .y = 50,
     .atteso = kCiano},
    {.che = "a shell's side over that of a later one",
     .tipo = kGusciTipo,
     .selezionato = "1",
     .x = 100,
     .y = 30,
     .atteso = kCiano},
    {.che = "shells still come after bars",
     .tipo = kAsteTipo,
     .selezionato = "3",
     .x = 100,
     .y = 30,
     .atteso = kRossa},
};

} // namespace

class Evidenza : public Utente {
  protected:
    static Pixel PixelDi(double x, double y) {
        bool fuori = false;
        return FormTelva.Disegno.InPixel(x, y, fuori);
    }
    static std::uint32_t Colore(double x, double y) {
        const Pixel p = PixelDi(x, y);
        return FormTelva.Disegno.Immagine().Leggi(p.x, p.y);
    }
    void Seleziona(int tipo, const std::string &nome) {
        Tipo(tipo);
        Menu("RimTutto");
        Menu("Aggiungi");
        Menu("Nome");
        Elenco(nome);
    }
};

TEST_F(Evidenza, CioCheESelezionatoSiDisegnaDopoGliAltriDelSuoTipo) {
    Apri(Incrocio());
    Opzioni[kOpzPennaSel] = 1.0;
    for (const CasoOrdine &caso : kCasiOrdine) {
        for (const int tipo : {kNodiTipo, kAsteTipo, kGusciTipo}) {
            Tipo(tipo);
            Menu("RimTutto");
        }
        Seleziona(caso.tipo, caso.selezionato);
        EXPECT_EQ(Colore(caso.x, caso.y), caso.atteso) << caso.che;
    }
}

TEST_F(Evidenza, DiDueNodiNelloStessoPostoSiVedeQuelloSelezionato) {
    Apri(Incrocio());
    Opzioni[kOpzPennaSel] = 1.0;
    const double unita = FormTelva.Disegno.UnitaPerPixel();
    const double bordo = 200 + OpzioneNumero(kOpzRaggioNodo) * unita;
    EXPECT_EQ(Colore(bordo, 100), kVerdina);
    Seleziona(kNodiTipo, "6");
    EXPECT_EQ(Colore(bordo, 100), kCiano);
}

TEST_F(Evidenza, LeEtichetteHannoUnContornoScuro) {
    LavoroProva l = Incrocio();
    l.aste.clear();
    l.gusci[0].tratto = 7; // the densest hatch
    Apri(l);
    Opzioni[kOpzTestiGusci] = 1.0;
    Opzioni[kOpzPartiGusci] = 1.0;
    Opzioni[kOpzColoreTesto] = 1.0;
    Opzioni[kOpzBaseTesto] = 6 * FormTelva.Disegno.UnitaPerPixel();
    Opzioni[kOpzAltezzaTesto] = 8 * FormTelva.Disegno.UnitaPerPixel();
    DisegnaStruttura();
    const Superficie &s = FormTelva.Disegno.Immagine();
    int bianchi = 0, retino = 0;
    for (int y = 1; y + 1 < s.Altezza(); ++y)
        for (int x = 1; x + 1 < s.Larghezza(); ++x) {
            if (s.Leggi(x, y) == kRossa) ++retino;
            if (s.Leggi(x, y) != kBianca) continue;
            ++bianchi;
            for (int dy = -1; dy <= 1; ++dy)
                for (int dx = -1; dx <= 1; ++dx)
                    EXPECT_NE(s.Leggi(x + dx, y + dy), kRossa)
                        << "hatch beside the label at pixel " << x << ", " << y;
        }
    EXPECT_GT(bianchi, 10) << "pixels of labels";
    EXPECT_GT(retino, 100) << "pixels of the hatch";
}

// The lit pixels of a character that begins at a fraction of a pixel.
class CifrePiccole : public Evidenza {
  protected:
    static constexpr int kLato = 14;
    using Forma = std::array<std::array<bool, kLato>, kLato>;

    static Forma Scritta(char cifra, double dx, double dy) {
        RiquadroDisegno &d = FormTelva.Disegno;
        const double unita = d.UnitaPerPixel();
        d.Cls();
        DisTesto(std::string(1, cifra), d.XDaPixel(3 + dx), d.YDaPixel(11 + dy), 0, 6 * unita,
                 8 * unita, std::int16_t{1}, &d);
        Forma forma;
        for (int y = 0; y < kLato; ++y)
            for (int x = 0; x < kLato; ++x) forma[y][x] = d.Immagine().Leggi(x, y) != 0;
        return forma;
    }
    // How many pixels tell them apart, when one lies over the other as well as it can.
    static int Differenze(const Forma &a, const Forma &b) {
        int meno = kLato * kLato;
        for (int oy = -1; oy <= 1; ++oy)
            for (int ox = -1; ox <= 1; ++ox) {
                int conto = 0;
                for (int y = 1; y + 1 < kLato; ++y)
                    for (int x = 1; x + 1 < kLato; ++x)
                        if (a[y][x] != b[y + oy][x + ox]) ++conto;
                meno = std::min(meno, conto);
            }
        return meno;
    }
};

TEST_F(CifrePiccole, ZeroSeiEOttoSiDistinguonoAOttoPixel) {
    Apri(Incrocio());
    for (const auto &[una, altra] : {std::pair{'0', '6'}, {'0', '8'}, {'6', '8'}})
        for (int fase = 0; fase < 16; ++fase)
            for (int altraFase = 0; altraFase < 16; ++altraFase) {
                const Forma a = Scritta(una, fase % 4 / 4.0, fase / 4 / 4.0);
                const Forma b = Scritta(altra, altraFase % 4 / 4.0, altraFase / 4 / 4.0);
                EXPECT_GE(Differenze(a, b), 2) << una << " and " << altra;
            }
}

} // namespace telva::prove
