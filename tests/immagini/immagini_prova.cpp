// What the user sees, pixel by pixel. After a change on purpose: rinnova.sh, and a look.
#include "Generatore.h"
#include "ScriviLavoro.h"
#include "immagini/Confronto.h"
#include "model/opzioni_cond.h"
#include "model/struttura.h"
#include "sostegno/Banco.h"
#include "sostegno/Composta.h"
#include "ui/controlli/FormOpt.h"
#include "ui/controlli/FormOptInt.h"
#include "ui/controlli/FormTelva.h"
#include "view/FunzDisegno.h"
#include "view/inquadra.h"
#include "view/proiezione.h"
#include "view/visibile.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace telva::prove {
namespace {

constexpr double kTwipPerPixel = 15;

// A job drawn on a sheet: x to the right and z upwards, one unit a pixel. Only what is asked for is
// seen of it: the nodes between bars and shells have no name.
struct Foglio : LavoroProva {
    int nomi = 0;

    int Punto(double x, double z) {
        const int posto = static_cast<int>(punti.size());
        punti.push_back({x, 0, z});
        nodi.push_back({.punto = posto, .nome = 0});
        return posto;
    }
    int NodoVisibile(double x, double z, int colore) {
        const int posto = Punto(x, z);
        nodi.back() = {.punto = posto, .nome = ++nomi, .colore = colore};
        return posto;
    }
    void Linea(double x1, double z1, double x2, double z2, int colore, int tipo = 0) {
        const int i = Punto(x1, z1);
        LineaDa(i, x2, z2, colore, tipo);
    }
    void LineaDa(int i, double x, double z, int colore, int tipo = 0) {
        const int j = Punto(x, z);
        aste.push_back({.i = i, .j = j, .nome = ++nomi, .colore = colore, .tipo = tipo});
    }
    // A slanting quadrilateral in the square of side `lato` whose lower left corner is (x, z).
    void Quadrilatero(double x, double z, double lato, int tratto, int colore) {
        QuadrilateroDa(Punto(x, z), lato, tratto, colore);
    }
    void QuadrilateroDa(int a, double lato, int tratto, int colore) {
        const double x = punti[a][0], z = punti[a][2];
        const int b = Punto(x + lato, z + lato * 0.2), c = Punto(x + lato * 0.9, z + lato);
        const int e = Punto(x + lato * 0.15, z + lato * 0.8);
        gusci.push_back({.nodi = {a, b, c, e}, .nome = ++nomi, .colore = colore, .tratto = tratto});
    }
    void Triangolo(double x, double z, double lato, int tratto, int colore) {
        const int a = Punto(x, z), b = Punto(x + lato, z), c = Punto(x + lato / 3, z + lato);
        gusci.push_back(
            {.nodi = {a, b, c, -1}, .nome = ++nomi, .colore = colore, .tratto = tratto});
    }
};

// A premultiplied picture over what is there.
void Sovrapponi(Superficie &s, const std::vector<std::uint32_t> &icona, int lato, int x0, int y0) {
    for (int n = 0; n < static_cast<int>(icona.size()); ++n) {
        const std::uint32_t p = icona[static_cast<std::size_t>(n)];
        std::uint32_t &sotto = s.Riga(y0 + n / lato)[x0 + n % lato];
        std::uint32_t misto = 0;
        for (const int posto : {0, 8, 16})
            misto |= ((p >> posto & 0xFF) + (sotto >> posto & 0xFF) * (255 - (p >> 24)) / 255)
                     << posto;
        sotto = misto;
    }
}

// Puts a picture below those that are there.
void Impila(Superficie &pila, const Superficie &s) {
    const Superficie sopra = pila;
    pila.Ridimensiona(s.Larghezza(), sopra.Altezza() + s.Altezza());
    std::copy(sopra.Riga(0), sopra.Riga(sopra.Altezza()), pila.Riga(0));
    std::copy(s.Riga(0), s.Riga(s.Altezza()), pila.Riga(sopra.Altezza()));
}

// Where the controls of a window stand: each in a tint of its own, those that hold or frame others
// and those that are greyed as outlines.
Superficie Pianta(const Modulo &modulo) {
    const auto pixel = [&](double twip) { return APixel(twip, modulo.dpi); };
    Superficie s;
    s.Ridimensiona(pixel(modulo.Width), pixel(modulo.Height));
    s.Riempi(0xF0F0F0);
    std::uint32_t tinta = 0x404040;
    for (const Controllo *c : modulo.controlli) {
        tinta = (tinta + 0x17305B) & 0xDFDFDF;
        if (!c->VisibileDavvero()) continue;
        const int sinistra = pixel(c->LeftAssoluto()), alto = pixel(c->TopAssoluto());
        const int destra = pixel(c->LeftAssoluto() + c->Width) - 1;
        const int basso = pixel(c->TopAssoluto() + c->Height) - 1;
        const bool vuoto = c->TipoControllo() == Tipo::Cornice ||
                           c->TipoControllo() == Tipo::Campione || !c->AbilitatoDavvero();
        for (int y = alto; y <= basso; y += vuoto ? std::max(basso - alto, 1) : 1)
            s.Linea({sinistra, y}, {destra, y}, tinta);
        for (const int x : {sinistra, destra}) s.Linea({x, alto}, {x, basso}, tinta);
        if (const auto *e = dynamic_cast<const Etichetta *>(c)) // a longer mark for each style
            s.Linea({sinistra, alto}, {sinistra + static_cast<int>(e->stile), alto}, 0);
    }
    return s;
}

struct Immagini : Banco {
    RiquadroDisegno &d = FormTelva.Disegno;
    ~Immagini() override { FormTelva.dpi = 96; }

    void Misura(int larghezza, int altezza) {
        Nota(Scritto("Misura", larghezza, altezza));
        d.Width = larghezza * kTwipPerPixel;
        d.Height = altezza * kTwipPerPixel;
    }
    void Angoli(const char *a, const char *b, const char *c) {
        Nota(Scritto("Angoli", a, b, c));
        FormTelva.Angolo[0].Text = a;
        FormTelva.Angolo[1].Text = b;
        FormTelva.Angolo[2].Text = c;
    }
    static void MisuraTesti(double base, double altezza) {
        Nota(Scritto("MisuraTesti", base, altezza));
        Opzioni[kOpzBaseTesto] = base;
        Opzioni[kOpzAltezzaTesto] = altezza;
        Opzioni[kOpzDistanzaTesto] = 2.0;
    }
    const Superficie &Dipingi() {
        CalcolaAttivi();
        DisegnaStruttura();
        return d.Immagine();
    }
    void Confronta(const std::string &nome) { ConfrontaImmagine(Dipingi(), nome); }
    void ApriFoglio(const Foglio &foglio, int larghezza, int altezza) {
        Apri(foglio);
        FormTelva.VisAssi.Checked = false;
        Misura(larghezza, altezza);
        d.Scale(0, altezza, larghezza, 0);
    }
    void ApriCampione() {
        Installa("dimo01");
        std::string cartella = Radice() + "/lavori/dimo01";
        std::ranges::replace(cartella, '\\', '/');
        generatore::ScriviLavoro(cartella, generatore::Genera(generatore::Taglia::Campione));
        AvviaSenzaDireNulla();
        Misura(640, 480);
    }
    // The frame with two braces that cross, close up and without its hatches.
    void ApriTelaio() {
        LavoroProva l = Telaio();
        l.aste.push_back({.i = 1, .j = 5, .nome = 13});
        l.aste.push_back({.i = 2, .j = 4, .nome = 14});
        for (auto &g : l.gusci) g.tratto = 0;
        l.elementi.push_back({.numero = 30, .nome = "Pilastro", .aste = {11}});
        l.elementi.push_back({.numero = 40, .nome = "Diagonale", .aste = {13}});
        Apri(l);
        FormTelva.VisAssi.Checked = false;
        Misura(520, 520);
        Adatta();
        MisuraTesti(4, 5);
        Opzioni[kOpzTestiElCont] = 0.0;
    }
};

TEST_F(Immagini, LavoroDaDueParti) {
    ApriCampione();
    for (int b = 0; b < NumAste; b += 7) SelAsta[b] = 1;
    for (int g = 0; g < NumGusci; g += 11) SelGuscio[g] = 1;
    for (int i = 0; i < NumNodi; i += 13) SelNodo[i] = 1;
    Angoli("25", "-20", "35");
    ASSERT_TRUE(ProiettaNodi());
    Adatta();
    Confronta("lavoro_assonometria");
    Angoli("-65", "0", "200"); // from below and behind
    ASSERT_TRUE(ProiettaNodi());
    Adatta();
    Confronta("lavoro_da_sotto");
}

TEST_F(Immagini, ColoriDegliElementi) {
    Foglio f;
    for (int colore = 0; colore < 12; ++colore) { // 10 and 11 are hidden
        const double x = 10 + 40 * colore;
        for (const double z : {10.0, 120.0}) {
            f.NodoVisibile(x + 15, z + 8, colore);
            f.Linea(x, z + 20, x + 30, z + 35, colore);
            f.Quadrilatero(x, z + 45, 32, 3, colore);
        }
    }
    f.Linea(5, 112, 1e12, 112, kVerde); // to where no pixel has a number
    ApriFoglio(f, 490, 220);
    for (int k = 1; k < 24; k += 2) { // the upper ones are selected
        SelAsta[k] = SelGuscio[k] = 1;
        SelNodo[f.aste[static_cast<std::size_t>(k)].i - 1] = 1;
    }
    Superficie pila = Dipingi();
    Opzioni[kOpzColoreSel] = 0.0; // the cyan goes to those that are not selected
    Impila(pila, Dipingi());
    Opzioni[kOpzPennaNonSel] = 2.0;
    Opzioni[kOpzPennaSel] = 9.0;
    Opzioni[kOpzRaggioNodo] = 12.0;
    Impila(pila, Dipingi());
    ConfrontaImmagine(pila, "colori");
}

TEST_F(Immagini, Retini) {
    Foglio f;
    for (int tratto = 0; tratto < 10; ++tratto) { // 0 and 9 are none
        const double x = 10 + 110 * (tratto % 5), z = 140 - 130 * (tratto / 5);
        f.Quadrilatero(x, z, 100, tratto, tratto == 0 ? 1 : tratto);
        f.Triangolo(x + 70, z + 3, 50, tratto, 1); // lies over it: the lines join up
    }
    f.Quadrilatero(10, 262, 11, 1, 1); // too small for a hatch
    f.Quadrilatero(40, 262, 14, 7, 1);
    f.Quadrilatero(500, 200, 120, 6, 5); // partly outside
    ApriFoglio(f, 570, 280);
    Confronta("retini");
}

// A window at 200 %: pens, dashes, hatches, letters and axes are twice as large on the screen.
TEST_F(Immagini, TrattiERetiniAl200) {
    Foglio f;
    for (int k = 0; k < 4; ++k) {
        f.Linea(10, 10 + 10 * k, 90, 20 + 10 * k, 1, k + 1);
        if (k % 2 == 0) // up or down: the same dashes
            f.Linea(100 + 8 * k, 10, 104 + 8 * k, 60, 5, k + 1);
        else
            f.Linea(104 + 8 * k, 60, 100 + 8 * k, 10, 5, k + 1);
        f.Quadrilatero(10 + 40 * k, 70, 36, 2 * k + 1, 4);
        f.Quadrilatero(10 + 40 * k, 112, 36, 2 * k + 2, 7);
        f.NodoVisibile(150, 12 + 15 * k, 3);
    }
    FormTelva.dpi = 192;
    ApriFoglio(f, 170, 155);
    Opzioni[kOpzRaggioNodo] = 4.0;
    Confronta("tratti_retini_200");
}

TEST_F(Immagini, EtichetteEAssiAl200) {
    FormTelva.dpi = 192;
    ApriTelaio();
    Misura(150, 140);
    FormTelva.VisAssi.Checked = true;
    Opzioni[kOpzTestiAste] = 1.0;
    for (int parte : {1, 2, 3, 4}) Opzioni[kOpzPartiAste + parte] = 0.0;
    MisuraTesti(9, 11);
    Adatta();
    Superficie pila = Dipingi();
    MisuraTesti(9, 9.5); // less than 6 pixels at 100 %: no outline
    Impila(pila, Dipingi());
    ConfrontaImmagine(pila, "etichette_assi_200");
}

// Bars in every direction and one seen from its end, each with its continuous element; nodes with
// more and more bars, and one at the corner of a shell; labels over a dense hatch.
TEST_F(Immagini, PostiDelleEtichette) {
    Foglio f;
    for (int k = 0; k < 9; ++k) {
        const double angolo = k * std::numbers::pi / 4, lungo = k < 8 ? 55 : 0;
        const double x = 70 + 130 * (k % 5), z = 70 + 130 * (k / 5);
        f.Linea(x, z, x + lungo * std::cos(angolo), z + lungo * std::sin(angolo), 5);
        f.elementi.push_back({.numero = k + 1, .nome = "Elemento", .aste = {f.nomi}});
    }
    for (int k = 0; k < 5; ++k) {
        const int nodo = f.NodoVisibile(50 + 115 * k, 300, 4);
        const double x = f.punti[nodo][0];
        if (k > 0) f.LineaDa(nodo, x + 35, 335, 9);
        if (k > 1) f.LineaDa(nodo, x + 35, 265, 9);
        if (k > 2) f.LineaDa(nodo, x - 35, 335, 9);
        if (k > 3) f.LineaDa(nodo, x - 35, 265, 9);
    }
    f.QuadrilateroDa(f.NodoVisibile(570, 260, 4), 80, 7, 3);
    f.Triangolo(670, 260, 80, 7, 3);
    ApriFoglio(f, 770, 360);
    SelElCont[1] = 1; // its bar is drawn as selected
    for (const int genere : {kOpzTestiNodi, kOpzTestiAste, kOpzTestiGusci, kOpzTestiElCont})
        Opzioni[genere] = 1.0;
    for (int parte : {2, 3, 4}) Opzioni[kOpzPartiAste + parte] = 0.0;
    MisuraTesti(6, 8);
    Confronta("etichette_posti");
}

// So close that a letter is more than 64 pixels tall, which is drawn stroke by stroke, over a
// hatch.
TEST_F(Immagini, EtichetteGrandi) {
    ApriTelaio();
    TrattGuscio[0] = TrattGuscio[1] = 7;
    MisuraTesti(5, 7);
    Opzioni[kOpzTestiAste] = Opzioni[kOpzTestiNodi] = 1.0;
    FinestraZoom = {.primaX = 130, .secondaX = 95, .primaY = 120, .secondaY = 90};
    Adatta();
    Confronta("etichette_grandi");
}

TEST_F(Immagini, Elastici) {
    Foglio f;
    f.Quadrilatero(40, 30, 90, 7, 1);
    ApriFoglio(f, 200, 150);
    d.Shape.Left = 20;
    d.Shape.Top = 130;
    d.Shape.Width = 90;
    d.Shape.Height = 70;
    d.LineSposta.X1 = 30;
    d.LineSposta.Y1 = 20;
    d.LineSposta.X2 = 180;
    d.LineSposta.Y2 = 110;
    d.Shape.Visible = d.LineSposta.Visible = true;
    d.Anteprima = Sagoma{.linee = {{10, 60, 190, 75}}, .cerchi = {{160, 30, 10}}};
    for (const int percento : {100, 200}) { // of the window
        FormTelva.dpi = 0.96 * percento;
        Dipingi();
        ConfrontaImmagine(Composta(d, {0, 0, d.LarghezzaPixel(), d.AltezzaPixel()}),
                          "elastici_" + std::to_string(percento));
    }
}

TEST_F(Immagini, PiantaDelleFinestre) {
    Apri(Telaio());
    ModuloTelva &f = FormTelva;
    ConfrontaImmagine(Pianta(f), "pianta_finestra");
    f.Width = 5550;
    f.Height = 7120;
    f.Resize();
    ConfrontaImmagine(Pianta(f), "pianta_minima");
    f.Width = 7000;
    for (const VoceMenu *barra : {&f.BarraLat, &f.BarraIcone, &f.VisCoord}) barra->Click();
    ConfrontaImmagine(Pianta(f), "pianta_senza_barre");
    for (const auto *apre : {&f.Rappresentazione, &f.Trappola}) apre->Click();
    ConfrontaImmagine(Pianta(FormOpt), "pianta_opzioni");
    ConfrontaImmagine(Pianta(FormOptInt), "pianta_trappola");
    FormOpt.Chiudi();
    FormOptInt.Chiudi();
}

// Every colour, line type and hatch beside its item, and those of "Tutti", at 100 % and 200 %.
TEST_F(Immagini, FigureDeiMenu) {
    constexpr int kPasso = 84;
    Superficie s;
    s.Ridimensiona(10 * kPasso, 6 * kPasso / 2);
    Apri(Telaio());
    int y0 = 0;
    for (const double quanto : {1.0, 2.0})
        for (const VoceMenu *menu :
             {&FormTelva.Colore, &FormTelva.TipoLinea, &FormTelva.TipoTratt}) {
            int x0 = 0;
            for (const VoceMenu *voce : menu->voci) {
                const Figura f =
                    FormTelva.FiguraMenu(voce->figura, static_cast<int>(13 * quanto), quanto);
                Sovrapponi(s, f.pixel, f.larghezza, x0, y0);
                x0 += kPasso;
            }
            y0 += kPasso / 2;
        }
    ConfrontaImmagine(s, "figure_menu");
}

// Every icon at every size, over a light and a dark tool bar.
TEST_F(Immagini, Icone) {
    Apri(Telaio());
    std::vector<std::string> chiavi;
    for (const BottoneBarra &b : FormTelva.Toolbar1.Bottoni) chiavi.push_back(b.chiave);
    chiavi.emplace_back("Telva");
    constexpr int kPasso = 52;
    Superficie s;
    s.Ridimensiona(kPasso * static_cast<int>(chiavi.size()), 6 * 2 * kPasso);
    int y0 = 0;
    for (const int lato : {16, 20, 24, 28, 32, 48})
        for (const std::uint32_t fondo : {0xF0F0F0u, 0x202020u}) {
            std::fill(s.Riga(y0), s.Riga(y0 + kPasso), fondo);
            int x0 = 2;
            for (const std::string &chiave : chiavi) {
                Sovrapponi(s, FormTelva.Toolbar1.FiguraBottone(chiave, lato), lato, x0, y0 + 2);
                x0 += kPasso;
            }
            y0 += kPasso;
        }
    ConfrontaImmagine(s, "icone");
}

} // namespace
} // namespace telva::prove
