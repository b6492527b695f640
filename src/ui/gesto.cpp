#include "ui/gesto.h"

#include "ui/controlli/FormTelva.h"

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <optional>

namespace telva {

std::int16_t PrimoAngolo = 0;
std::int16_t SpostaInCorso = 0;
std::int16_t ModoZoom = 0;
std::int16_t ModoSposta = 0;
std::int16_t FinestraAutomatica = 0;

namespace {

// One row a gesture, in the order of Gesto: what each name is while it lasts.
struct RigaGesto {
    Gesto gesto;
    Strato strato;
    std::optional<Puntatore> puntatore; // none: that of the layer beneath
    std::int16_t finestraAutomatica, modoZoom, modoSposta;
    std::int16_t primoAngolo;   // 1: Shape is seen
    std::int16_t spostaInCorso; // 1: LineSposta is seen
};
constexpr auto kFreccia = Puntatore::Predefinito;
constexpr auto kCroce = Puntatore::Croce;
constexpr auto kMano = Puntatore::Ridimensiona;
constexpr auto kSotto = std::nullopt;

constexpr RigaGesto kGesti[] = {
    // clang-format off
    //                                                     automatica  zoom  sposta  angolo  in corso
    {Gesto::Riposo,           Strato::Selezione,     kFreccia,   0,      0,     0,      0,      0},
    {Gesto::FinestraAttesa,   Strato::Selezione,     kCroce,     0,      0,     0,      0,      0},
    {Gesto::FinestraAperta,   Strato::Selezione,     kCroce,     0,      0,     0,      1,      0},
    {Gesto::AutomaticaAttesa, Strato::Selezione,     kCroce,     1,      0,     0,      0,      0},
    {Gesto::AutomaticaAperta, Strato::Selezione,     kCroce,     1,      0,     0,      1,      0},
    {Gesto::VistaFerma,       Strato::Vista,         kSotto,     0,      0,     0,      0,      0},
    {Gesto::ZoomArmato,       Strato::Vista,         kCroce,     0,      1,     0,      0,      0},
    {Gesto::ZoomAperto,       Strato::Vista,         kCroce,     0,      1,     0,      1,      0},
    {Gesto::SpostaArmato,     Strato::Vista,         kMano,      0,      0,     1,      0,      0},
    {Gesto::SpostaAperto,     Strato::Vista,         kMano,      0,      0,     1,      0,      1},
    {Gesto::TastoLibero,      Strato::TastoCentrale, kSotto,     0,      0,     0,      0,      0},
    {Gesto::Trascina,         Strato::TastoCentrale, kSotto,     0,      0,     0,      0,      0},
    // clang-format on
};

constexpr bool OgnunoAlSuoPosto() {
    for (std::size_t k = 0; k < std::size(kGesti); ++k)
        if (static_cast<std::size_t>(kGesti[k].gesto) != k) return false;
    return std::size(kGesti) == static_cast<std::size_t>(Gesto::Trascina) + 1;
}
static_assert(OgnunoAlSuoPosto());

const RigaGesto &Riga(Gesto gesto) { return kGesti[static_cast<std::size_t>(gesto)]; }

Gesto corrente[] = {Gesto::Riposo, Gesto::VistaFerma, Gesto::TastoLibero}; // by layer

Gesto &Corrente(Strato strato) { return corrente[static_cast<std::size_t>(strato)]; }

std::int16_t Nome(std::int16_t RigaGesto::*campo) {
    const auto vale = [campo](Gesto g) { return Riga(g).*campo == 1; };
    return std::ranges::any_of(corrente, vale) ? 1 : 0;
}

} // namespace

void Entra(Gesto gesto) {
    const RigaGesto &riga = Riga(gesto);
    Corrente(riga.strato) = gesto;
    FinestraAutomatica = Nome(&RigaGesto::finestraAutomatica);
    ModoZoom = Nome(&RigaGesto::modoZoom);
    ModoSposta = Nome(&RigaGesto::modoSposta);
    PrimoAngolo = Nome(&RigaGesto::primoAngolo);
    SpostaInCorso = Nome(&RigaGesto::spostaInCorso);
    RiquadroDisegno &d = FormTelva.Disegno;
    d.Shape.Visible = PrimoAngolo == 1;
    d.LineSposta.Visible = SpostaInCorso == 1;
    // The drag leaves the pointer as it is.
    if (riga.strato != Strato::TastoCentrale)
        d.MousePointer = riga.puntatore.value_or(*Riga(GestoIn(Strato::Selezione)).puntatore);
}

bool InCorso(Gesto gesto) { return GestoIn(Riga(gesto).strato) == gesto; }

Gesto GestoIn(Strato strato) { return Corrente(strato); }

void FinisciGesti() {
    for (const Gesto riposo : {Gesto::TastoLibero, Gesto::VistaFerma, Gesto::Riposo}) Entra(riposo);
}

} // namespace telva
