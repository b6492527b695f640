#pragma once
// A window system that only notes what the forms ask of it.

#include "platform/controlli.h"

#include <string>
#include <utility>

namespace telva::prove {

struct Schermo : SistemaFinestre {
    std::string fatto, fuoco; // what the forms asked for; the control that has the focus then
    Schermo() { ImpostaSistemaFinestre(this); }
    ~Schermo() override { ImpostaSistemaFinestre(nullptr); }
    void Segna(const char *che, const Modulo &m) {
        fatto += (fatto.empty() ? "" : ", ") + (che + m.NomeControllo());
        fuoco = m.fuoco ? m.fuoco->NomeControllo() : "";
    }
    void Prepara(Modulo &m) override { Segna("prepara ", m); }
    void Mostra(Modulo &m) override { Segna("mostra ", m); }
    void MostraModale(Modulo &m) override { Segna("modale ", m); }
    void Chiudi(Modulo &m) override { Segna("chiudi ", m); }
    void MostraPopup(Modulo &, VoceMenu &menu) override { fatto += menu.NomeControllo(); }
    std::string Fatto() { return std::exchange(fatto, ""); }
};

} // namespace telva::prove
