#include "platform/messaggi.h"

#include "platform/guasto.h"

#include <cstdlib>
#include <exception>

namespace telva {
namespace {

FunzioneMessaggio &Mostra() {
    static FunzioneMessaggio funzione;
    return funzione;
}

FunzioneFine &Fine() {
    static FunzioneFine funzione;
    return funzione;
}

void ChiudiPerGuasto(const std::string &motivo) {
    MostraMessaggio(motivo, Gravita::Critica, "ERRORE");
    FineProgramma(kFineDaSe);
}

} // namespace

void ImpostaMessaggi(FunzioneMessaggio mostra) { Mostra() = std::move(mostra); }
void ImpostaFine(FunzioneFine fine) { Fine() = std::move(fine); }

void MostraMessaggio(const std::string &testo, Gravita gravita, const std::string &titolo) {
    if (Mostra()) Mostra()(testo, gravita, titolo);
}

void FineProgramma(int codice) {
    if (Fine()) Fine()(codice);
    std::exit(codice);
}

void EseguiProtetto(const std::function<void()> &evento) {
    std::string motivo;
    try {
        evento();
        return;
    } catch (const std::exception &e) {
        motivo = MotivoGuasto(e);
    }
    ChiudiPerGuasto(motivo);
}

} // namespace telva
