#include "platform/controlli.h"

#include "platform/interi.h"

namespace telva {
namespace {

SistemaFinestre *&Sistema() {
    static SistemaFinestre *sistema = nullptr;
    return sistema;
}

} // namespace

void ImpostaSistemaFinestre(SistemaFinestre *sistema) { Sistema() = sistema; }

int APixel(double twip, double dpi) { return InteroVicino(twip * dpi / 1440); }
double ATwip(double pixel, double dpi) { return pixel * 1440 / dpi; }

Controllo::Controllo(Modulo *proprietario, std::string nome, Tipo tipo, Controllo *genitore)
    : Left(*this, Campo::Posizione), Top(*this, Campo::Posizione), Width(*this, Campo::Posizione),
      Height(*this, Campo::Posizione), Visible(*this, Campo::Visibile, true),
      Enabled(*this, Campo::Abilitato, true), ToolTipText(*this, Campo::Suggerimento),
      nome_(std::move(nome)), tipo_(tipo), proprietario_(proprietario), genitore_(genitore) {
    if (proprietario && tipo != Tipo::VoceMenu) proprietario->controlli.push_back(this);
}

void Controllo::Avvisa(Campo campo) {
    if (pari) pari->Cambia(*this, campo);
}

void Controllo::SetFocus() {
    if (proprietario_) proprietario_->fuoco = this;
    Avvisa(Campo::Fuoco);
}

void Controllo::Posiziona(double left, double top, double width, double height) {
    Left = left;
    Top = top;
    Width = width;
    Height = height;
}

double Controllo::LeftAssoluto() const {
    return Left + (genitore_ ? genitore_->LeftAssoluto() : 0);
}
double Controllo::TopAssoluto() const { return Top + (genitore_ ? genitore_->TopAssoluto() : 0); }
bool Controllo::VisibileDavvero() const {
    return Visible && (!genitore_ || genitore_->VisibileDavvero());
}
bool Controllo::AbilitatoDavvero() const {
    return Enabled && (!genitore_ || genitore_->AbilitatoDavvero());
}

void CasellaSpunta::Premi() {
    Value = !Value;
    if (Click) Click();
}

void BottoneOpzione::Seleziona() {
    for (Controllo *c : Proprietario()->controlli)
        if (auto *altro = dynamic_cast<BottoneOpzione *>(c);
            altro && altro != this && altro->Genitore() == Genitore())
            altro->Value = false;
    Value = true;
    if (Click) Click();
}

VoceMenu::VoceMenu(Modulo *f, std::string nome)
    : Controllo(f, std::move(nome), Tipo::VoceMenu), Caption(*this, Campo::Didascalia),
      Checked(*this, Campo::Spunta, false) {
    f->voci.push_back(this);
}

void BarraStrumenti::Suggerimento(std::string_view chiave, const std::string &testo) {
    for (BottoneBarra &b : Bottoni)
        if (b.chiave == chiave) b.suggerimento = testo;
    Avvisa(Campo::Barra);
}

std::string BarraStrumenti::Suggerimento(std::string_view chiave) const {
    for (const BottoneBarra &b : Bottoni)
        if (b.chiave == chiave) return b.suggerimento;
    return {};
}

Modulo::Modulo(std::string nome)
    : Controllo(nullptr, std::move(nome), Tipo::Modulo), Caption(*this, Campo::Didascalia),
      MousePointer(*this, Campo::Puntatore, telva::Puntatore::Predefinito) {}

void Modulo::Prepara() {
    if (Sistema()) Sistema()->Prepara(*this);
}

void Modulo::Mostra() {
    mostrata_ = true;
    if (Sistema()) Sistema()->Mostra(*this);
}

void Modulo::MostraModale() {
    mostrata_ = true;
    if (Sistema()) Sistema()->MostraModale(*this);
}

void Modulo::Chiudi() {
    if (!mostrata_) return;
    mostrata_ = false;
    if (Unload) Unload();
    if (Sistema()) Sistema()->Chiudi(*this);
}

void Modulo::MostraPopup(VoceMenu &menu) {
    if (Sistema()) Sistema()->MostraPopup(*this, menu);
}

} // namespace telva
