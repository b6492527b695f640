// The one place that knows every kind of control: a new kind is a new file and a line here.
#include "platform/win32/pari_crea_win32.h"

#include "platform/guasto.h"
#include "platform/win32/barra_win32.h"
#include "platform/win32/bottone_opzione_win32.h"
#include "platform/win32/campione_win32.h"
#include "platform/win32/casella_spunta_win32.h"
#include "platform/win32/casella_testo_win32.h"
#include "platform/win32/cornice_win32.h"
#include "platform/win32/disegno_win32.h"
#include "platform/win32/etichetta_stato_win32.h"
#include "platform/win32/etichetta_win32.h"
#include "platform/win32/pulsante_win32.h"
#include "platform/win32/riassunto_win32.h"

namespace telva {
namespace {

template <class P, class C>
std::unique_ptr<PariWin32> Nuovo(Controllo &c, OspiteWin32 &finestra) {
    return std::make_unique<P>(static_cast<C &>(c), finestra);
}

std::unique_ptr<PariWin32> NuovaEtichetta(Controllo &c, OspiteWin32 &finestra) {
    switch (static_cast<Etichetta &>(c).stile) {
    case StileEtichetta::ADestra: return Nuovo<EtichettaADestraWin32, Etichetta>(c, finestra);
    case StileEtichetta::Stato: return Nuovo<EtichettaStatoWin32, Etichetta>(c, finestra);
    case StileEtichetta::Riassunto: return Nuovo<RiassuntoWin32, Etichetta>(c, finestra);
    default: return Nuovo<EtichettaWin32, Etichetta>(c, finestra);
    }
}

} // namespace

std::unique_ptr<PariWin32> CreaPari(Controllo &c, OspiteWin32 &finestra) {
    switch (c.TipoControllo()) {
    case Tipo::BarraStrumenti: return Nuovo<BarraWin32, BarraStrumenti>(c, finestra);
    case Tipo::BottoneOpzione: return Nuovo<BottoneOpzioneWin32, BottoneOpzione>(c, finestra);
    case Tipo::Campione: return Nuovo<CampioneWin32, Campione>(c, finestra);
    case Tipo::CasellaSpunta: return Nuovo<CasellaSpuntaWin32, CasellaSpunta>(c, finestra);
    case Tipo::CasellaTesto: return Nuovo<CasellaTestoWin32, CasellaTesto>(c, finestra);
    case Tipo::Cornice: return Nuovo<CorniceWin32, Cornice>(c, finestra);
    case Tipo::Disegno: return Nuovo<DisegnoWin32, RiquadroDisegno>(c, finestra);
    case Tipo::Etichetta: return NuovaEtichetta(c, finestra);
    case Tipo::Pulsante: return Nuovo<PulsanteWin32, Pulsante>(c, finestra);
    case Tipo::Modulo:
    case Tipo::VoceMenu: break; // they are a window and a menu, not controls in one
    }
    throw Guasto("Nessuna finestra mostra il controllo " + c.NomeControllo());
}

} // namespace telva
