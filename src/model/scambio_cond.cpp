#include "model/scambio_cond.h"

#include "platform/archivio.h"
#include "platform/file_testo.h"
#include "platform/messaggi.h"
#include "platform/numeri.h"
#include "platform/tabella.h"
#include "platform/testo.h"
#include "startup/basCommon_cond.h"
#include "startup/direttori_cond.h"
#include "ui/controlli/FormTelva.h"

#include <algorithm>

namespace telva {
namespace {

std::string FileUscita() { return DirLavoro + "\\TelvaOut.txt"; }

} // namespace

std::string StrSelNodi, StrSelAste, StrSelGusci, StrSelElCont, StrSelPareti;

int TipoRichiesto = -1;

std::string &StrSel(int tipo) {
    static const Tabella<std::string *, 5> liste = [] {
        Tabella<std::string *, 5> t{"StrSel"};
        int k = 0;
        for (auto *lista : {&StrSelNodi, &StrSelAste, &StrSelGusci, &StrSelElCont, &StrSelPareti})
            t[k++] = lista;
        return t;
    }();
    return *liste[tipo];
}

void LeggiIngresso(std::string &sel) {
    TogliProvvisori(FileUscita());
    FileTesto file;
    TitoloIn.clear();
    TipoRichiesto = -1;
    if (!file.Apri(DirLavoro + "\\TelvaIn.txt")) {
        FormTelva.StringaSel.Caption = "";
        FormTelva.OptElem[0].Seleziona();
        return;
    }
    std::string riga;
    file.LeggiRigaTesto(TitoloIn);
    if (file.LeggiRigaTesto(riga)) sel = Rifila(riga);
    double letto = -1;
    file.LeggiNumero(letto);
    const double tipo = ArrotondaPari(letto);
    if (tipo >= 0 && tipo <= 2) StrSel(static_cast<int>(tipo)) = sel;
    if (tipo >= 0 && tipo <= 4) TipoRichiesto = static_cast<int>(tipo);
    FormTelva.OptElem[std::max(TipoRichiesto, 0)].Seleziona();
}

void ScriviUscita() {
    const std::string testo(Rifila(FormTelva.StringaSel.Caption()));
    if (!ScriviFile(FileUscita(), AWindows1252(testo.empty() ? " " : testo) + "\r\n"))
        MostraMessaggio(Messaggi[kMsgUscitaNonScritta], Gravita::Critica, "Problema");
}

} // namespace telva
