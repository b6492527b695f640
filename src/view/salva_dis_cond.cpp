#include "view/salva_dis_cond.h"

#include "model/legfont_cond.h"
#include "platform/disegno.h"
#include "platform/interi.h"
#include "platform/messaggi.h"
#include "platform/testo.h"
#include "view/colori.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <list>
#include <memory>

namespace telva {

std::int32_t NumCoordDis;
Tabella<double, kCoordDis> CoordDisX{"CoordDisX"}, CoordDisY{"CoordDisY"};
std::int32_t NumElemDis;
Tabella<std::int32_t, kElemDis> ElemDisIni{"ElemDisIni"}, ElemDisFin{"ElemDisFin"};
Tabella<std::int16_t, kElemDis> ElemDisColore{"ElemDisColore"}, ElemDisTipo{"ElemDisTipo"};
std::int16_t ColoreDisCorrente, TipoDisCorrente;
double OffsetDisX, OffsetDisY;
std::string ModoDisTesto;
std::vector<TestoDis> TestiDis;

namespace {

constexpr double kVicino = 0.0001; // drawing coordinates closer than this are the same
constexpr std::int32_t kLimiteCoord = 50000, kLimiteElem = 50000;
constexpr std::int32_t kRicerca = 30; // how far behind the last point sharing looks

constexpr double kLarghezzaCella = 99, kAltezzaCella = 69, kLineaBase = 30;

bool Vicini(double x1, double y1, double x2, double y2) {
    return std::abs(x1 - x2) < kVicino && std::abs(y1 - y2) < kVicino;
}

void Avverti(const char *testo) { MostraMessaggio(testo, Gravita::Esclamazione, "Problema"); }

void RegistraTesto(std::string_view testo, double x, double y) {
    if (TestiDis.size() >= kTestiDis) return;
    if (TestiDis.size() == kTestiDis - 1) Avverti(" Numero eccessivo di testi ");
    TestiDis.push_back({std::string(testo), x + OffsetDisX, y + OffsetDisY});
}

} // namespace

std::int32_t AggiungiCoordinata(double x, double y) {
    for (std::int32_t i = NumCoordDis - 1; i >= 0 && i >= NumCoordDis - 1 - kRicerca; --i)
        if (Vicini(x, y, CoordDisX[i], CoordDisY[i])) return i;
    if (NumCoordDis == kLimiteCoord - 1) Avverti(" Numero eccessivo di coordinate ");
    if (NumCoordDis == kLimiteCoord) return -1;
    CoordDisX[NumCoordDis] = x;
    CoordDisY[NumCoordDis] = y;
    return NumCoordDis++;
}

void AggiungiElemento(double x1, double y1, double x2, double y2, std::int16_t colore) {
    if (NumElemDis == kLimiteElem - 1) Avverti(" Numero eccessivo di elementi di disegno ");
    if (NumElemDis == kLimiteElem) return;
    const std::int32_t posto = NumElemDis++;
    ElemDisIni[posto] = AggiungiCoordinata(x1, y1);
    ElemDisFin[posto] = AggiungiCoordinata(x2, y2);
    ElemDisTipo[posto] = TipoDisCorrente;
    ElemDisColore[posto] = colore;
    if (ElemDisFin[posto] < 0) --NumElemDis;
}

void DisLinea(double x1, double y1, double x2, double y2, std::optional<std::int16_t> colore,
              RiquadroDisegno *bersaglio) {
    if (Vicini(x1, y1, x2, y2)) return;
    if (bersaglio)
        bersaglio->Line(x1, y1, x2, y2, ColoreRGB(colore.value_or(0)));
    else
        AggiungiElemento(x1 + OffsetDisX, y1 + OffsetDisY, x2 + OffsetDisX, y2 + OffsetDisY,
                         colore.value_or(ColoreDisCorrente));
}

namespace {

// Size and direction of a text: what turns font units into drawing units.
struct Misura {
    double ct = 1, st = 0, sx, sy;

    Misura(std::int16_t angolo, double base, double altezza) {
        if (angolo != 0) { // few texts are turned
            const double teta = angolo * 4 * std::atan(1.0) / 180;
            ct = std::cos(teta);
            st = std::sin(teta);
        }
        sx = (1 - SpazioFont / 100.0) * base / kLarghezzaCella;
        sy = altezza / kAltezzaCella;
    }
    double X(int codice, int j) const {
        return FontX(codice, j) * sx * ct - (FontY(codice, j) - kLineaBase) * sy * st;
    }
    double Y(int codice, int j) const {
        return FontX(codice, j) * sx * st + (FontY(codice, j) - kLineaBase) * sy * ct;
    }
    friend bool operator==(const Misura &, const Misura &) = default;
};

// The glyphs of one size and direction, made into pixels once for all the texts of a picture. Their
// places are rounded to a quarter of a pixel, so that each glyph has only sixteen shapes; large
// ones are drawn stroke by stroke.
class CaratteriInScala {
  public:
    enum class Passata { Contorno, Interno };

    CaratteriInScala(const Misura &misura, const RiquadroDisegno &d) : chiave_(misura, d) {}

    bool Valgono(const Misura &misura, const RiquadroDisegno &d) const {
        return chiave_ == Chiave(misura, d);
    }

    void Disegna(Passata passata, int codice, double x, double y, std::uint32_t colore,
                 RiquadroDisegno &d) {
        Carattere &c = Prepara(codice);
        if (c.tratti.punti.empty()) return;
        const int penna = chiave_.penna;
        const int ix = InteroVicino(d.XPixel(x) * kFrazioni);
        const int iy = InteroVicino(d.YPixel(y) * kFrazioni);
        const bool vicino = ix > -kLontano && ix < kLontano && iy > -kLontano && iy < kLontano;
        if (!c.piccolo || !vicino) {
            d.DrawWidth = passata == Passata::Contorno ? 3 * penna : penna;
            d.LineeTratti(c.tratti, x, y, colore);
            d.DrawWidth = penna;
            return;
        }
        const int fx = ix & (kFrazioni - 1), fy = iy & (kFrazioni - 1);
        const auto forma = static_cast<std::size_t>(fy * kFrazioni + fx);
        if (!c.fatti[forma]) {
            c.timbri[forma].Riempi(c.tratti, double(fx) / kFrazioni, double(fy) / kFrazioni, penna);
            c.fatti[forma] = true;
        }
        const Pixel origine{(ix - fx) / kFrazioni, (iy - fy) / kFrazioni};
        if (passata == Passata::Interno) return d.Timbra(c.timbri[forma], origine, colore);
        if (c.contorni[forma].pixel.empty()) c.contorni[forma].Contorna(c.timbri[forma], penna);
        d.Timbra(c.contorni[forma], origine, colore);
    }

  private:
    static constexpr int kFrazioni = 4;
    static constexpr int kLontano = 1 << 24;
    static constexpr double kGrande = 64; // pixels at 100 %

    struct Chiave {
        Misura misura;
        double scalaX = 0, scalaY = 0;
        double grande = 0; // pixels from which a glyph is drawn stroke by stroke
        int penna = 0, revisione = -1;

        Chiave(const Misura &m, const RiquadroDisegno &d)
            : misura(m), scalaX(d.ScalaX()), scalaY(d.ScalaY()), grande(d.PixelOpzione(kGrande)),
              penna(std::max(d.DrawWidth, 1)), revisione(RevisioneFont) {}
        friend bool operator==(const Chiave &, const Chiave &) = default;
    };
    struct Carattere {
        Tratti tratti;
        bool piccolo = true;
        std::array<bool, kFrazioni * kFrazioni> fatti{};
        std::array<Timbro, kFrazioni * kFrazioni> timbri, contorni;
    };

    Carattere &Prepara(int codice) {
        std::unique_ptr<Carattere> &posto = caratteri_[static_cast<std::size_t>(codice)];
        if (posto) return *posto;
        posto = std::make_unique<Carattere>();
        Carattere &c = *posto;
        const Misura &m = chiave_.misura;
        for (int j = 0; j + 1 < NumPtFont[codice]; j += 2) {
            const double x1 = m.X(codice, j), y1 = m.Y(codice, j);
            const double x2 = m.X(codice, j + 1), y2 = m.Y(codice, j + 1);
            if (Vicini(x1, y1, x2, y2)) continue;
            c.tratti.Aggiungi(x1 * chiave_.scalaX, y1 * chiave_.scalaY, x2 * chiave_.scalaX,
                              y2 * chiave_.scalaY);
        }
        const Tratti &t = c.tratti; // small, and not far from its origin
        const double grande = chiave_.grande;
        c.piccolo = t.maxX - t.minX < grande && t.maxY - t.minY < grande &&
                    std::max({-t.minX, t.maxX, -t.minY, t.maxY}) < 2 * grande;
        return c;
    }

    Chiave chiave_;
    std::array<std::unique_ptr<Carattere>, 256> caratteri_;
};

using Passata = CaratteriInScala::Passata;

// Those of the sizes and directions used last, the newest first: names run along their elements,
// which have few directions, and the axes have a letter size of their own.
CaratteriInScala &Caratteri(const Misura &misura, const RiquadroDisegno &d) {
    constexpr std::size_t kTenuti = 8;
    static std::list<CaratteriInScala> ultimi;
    const auto trovati = std::find_if(ultimi.begin(), ultimi.end(), [&](const auto &caratteri) {
        return caratteri.Valgono(misura, d);
    });
    if (trovati != ultimi.end())
        ultimi.splice(ultimi.begin(), ultimi, trovati);
    else
        ultimi.emplace_front(misura, d);
    if (ultimi.size() > kTenuti) ultimi.pop_back();
    return ultimi.front();
}

// `scrivi(codice, x, y)` for each character with the place of its cell, up to one that the font's
// code page does not have.
template <class Scrivi>
void PerCarattere(std::string_view testo, double x, double y, double base, const Misura &misura,
                  Scrivi scrivi) {
    double avanzamento = -base;
    for (std::size_t posto = 0; posto < testo.size();) {
        const int codice = CodiceAnsi(ProssimoCarattere(testo, posto));
        if (codice < 0) return;
        avanzamento += base;
        scrivi(codice, x + avanzamento * misura.ct, y + avanzamento * misura.st);
    }
}

void DisegnaTesto(Passata passata, std::string_view testo, double x, double y, double base,
                  const Misura &misura, std::int16_t colore, RiquadroDisegno &d) {
    CaratteriInScala &caratteri = Caratteri(misura, d);
    const std::uint32_t rgb = ColoreRGB(colore);
    PerCarattere(testo, x, y, base, misura, [&](int codice, double ox, double oy) {
        caratteri.Disegna(passata, codice, ox, oy, rgb, d);
    });
}

void RegistraCarattere(int codice, const Misura &m, double ox, double oy,
                       std::optional<std::int16_t> colore) {
    for (int j = 0; j + 1 < NumPtFont[codice]; j += 2)
        DisLinea(ox + m.X(codice, j), oy + m.Y(codice, j), ox + m.X(codice, j + 1),
                 oy + m.Y(codice, j + 1), colore);
}

} // namespace

void DisTesto(std::string_view testo, double x, double y, std::int16_t angolo, double base,
              double altezza, std::optional<std::int16_t> colore, RiquadroDisegno *bersaglio) {
    if (base == 0 || altezza == 0) return;
    if (ModoDisTesto == "gendis") {
        RegistraTesto(testo, x, y);
        return;
    }
    const Misura misura(angolo, base, altezza);
    if (bersaglio)
        return DisegnaTesto(Passata::Interno, testo, x, y, base, misura, colore.value_or(0),
                            *bersaglio);
    PerCarattere(testo, x, y, base, misura, [&](int codice, double ox, double oy) {
        RegistraCarattere(codice, misura, ox, oy, colore);
    });
}

void DisTestoContornato(std::string_view testo, double x, double y, std::int16_t angolo,
                        double base, double altezza, std::int16_t colore,
                        RiquadroDisegno &bersaglio) {
    if (base == 0 || altezza == 0 || ModoDisTesto == "gendis")
        return DisTesto(testo, x, y, angolo, base, altezza, colore, &bersaglio);
    // The outlines first, all of them: none may cut into the character beside it.
    const Misura misura(angolo, base, altezza);
    DisegnaTesto(Passata::Contorno, testo, x, y, base, misura, kNero, bersaglio);
    DisegnaTesto(Passata::Interno, testo, x, y, base, misura, colore, bersaglio);
}

void AzzeraDisegno() {
    NumCoordDis = NumElemDis = 0;
    TestiDis.clear();
    ColoreDisCorrente = TipoDisCorrente = 0;
    OffsetDisX = OffsetDisY = 0;
    ModoDisTesto.clear();
}

} // namespace telva
