#include "platform/programma.h"

#include "platform/messaggi.h"
#include "startup/avvio.h"
#include "startup/direttori_cond.h"
#include "ui/controlli/FormTelva.h"

namespace telva {

void Principale(const std::string &argomento) {
    EseguiProtetto([&] {
        ArgomentoAvvio = argomento;
        Avvia();
        FormTelva.Mostra();
    });
}

} // namespace telva
