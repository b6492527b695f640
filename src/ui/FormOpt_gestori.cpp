#include "ui/FormOpt_gestori.h"

#include "model/opzioni_cond.h"
#include "platform/citazione.h"
#include "platform/messaggi.h"
#include "platform/numeri.h"
#include "platform/tasti.h"
#include "ui/controlli/FormOpt.h"
#include "ui/vista_gestori.h"
#include "view/colori.h"

#include <cmath>

namespace telva {
namespace {

static_assert(ModuloOpt::kCampioni == kNumeroColori);

int coloreTesto = 0;
bool applicate = false; // "Salva" has run since the dialog opened

struct CampoTesto {
    CasellaTesto *casella;
    int voce;
};
struct CampoSpunta {
    CasellaSpunta *casella;
    int voce;
};

// Text boxes and check boxes with the entry each one shows.
constexpr int kCampiTesto = 7;
CampoTesto *CampiTesto() {
    ModuloOpt &f = FormOpt;
    static CampoTesto campi[kCampiTesto] = {
        {&f.SpMinGus, kOpzSpessoreMinimo}, {&f.SpNonSel, kOpzPennaNonSel},
        {&f.SpSel, kOpzPennaSel},          {&f.Raggio, kOpzRaggioNodo},
        {&f.BaseTxt, kOpzBaseTesto},       {&f.AltezzaTxt, kOpzAltezzaTesto},
        {&f.DistTxt, kOpzDistanzaTesto}};
    return campi;
}

std::vector<CampoSpunta> CampiSpunta() {
    ModuloOpt &f = FormOpt;
    std::vector<CampoSpunta> campi = {
        {&f.CheckSpGus, kOpzNascondiSottili}, {&f.CheckTxtNodi, kOpzTestiNodi},
        {&f.CheckTxtAste, kOpzTestiAste},     {&f.CheckTxtGusci, kOpzTestiGusci},
        {&f.CheckTxtElCont, kOpzTestiElCont}, {&f.TxtElCont, kOpzNomeElCont}};
    const auto parti = [&](auto &caselle, int prima) {
        for (int k = 0; k < caselle.Numero(); ++k) campi.push_back({&caselle[k], prima + k});
    };
    parti(f.TxtNodi, kOpzPartiNodi);
    parti(f.TxtAste, kOpzPartiAste);
    parti(f.TxtGusci, kOpzPartiGusci);
    return campi;
}

void ControllaSpessore() {
    FormOpt.SpMinGus.Enabled = FormOpt.CheckSpGus.Value();
    FormOpt.LabelSpMinGus.Enabled = FormOpt.CheckSpGus.Value();
}

void LabelCol_Click(int indice) {
    coloreTesto = indice;
    EvidColAtt();
}

void Salva_Opzioni() {
    AggiornaOpzioni();
    applicate = true;
    MostraMessaggio(ScriviOpzioni(), Gravita::Esclamazione, "INFORMAZIONE");
}

// Text of an entry as the box shows it.
std::string TestoOpzione(int voce) {
    if (const auto *testo = std::get_if<std::string>(&Opzioni[voce])) return *testo;
    return std::holds_alternative<double>(Opzioni[voce]) ? CitaNumero(OpzioneNumero(voce)) : "";
}

} // namespace

void EvidColAtt() {
    for (int k = 0; k < FormOpt.LabelCol.Numero(); ++k)
        FormOpt.LabelBordCol[k].Marcato = FormOpt.LabelCol[k].Marcato = k == coloreTesto;
}

void ControllaNumerazioneAtt() {
    ModuloOpt &f = FormOpt;
    for (CasellaSpunta &c : f.TxtNodi) c.Enabled = f.CheckTxtNodi.Value();
    for (CasellaSpunta &c : f.TxtAste) c.Enabled = f.CheckTxtAste.Value();
    for (CasellaSpunta &c : f.TxtGusci) c.Enabled = f.CheckTxtGusci.Value();
    f.TxtElCont.Enabled = f.CheckTxtElCont.Value();
    const bool testi = f.CheckTxtNodi.Value || f.CheckTxtAste.Value || f.CheckTxtGusci.Value ||
                       f.CheckTxtElCont.Value;
    for (Controllo *c : std::initializer_list<Controllo *>{
             &f.LabelBaseTxt, &f.BaseTxt, &f.LabelAltezzaTxt, &f.AltezzaTxt, &f.LabelDistTxt,
             &f.DistTxt, &f.LabelColoreTxt})
        c->Enabled = testi;
    for (Campione &c : f.LabelCol) c.Enabled = testi;
    for (Campione &c : f.LabelBordCol) c.Enabled = testi;
}

void MostraOpzioni() {
    for (int k = 0; k < kCampiTesto; ++k)
        CampiTesto()[k].casella->Text = TestoOpzione(CampiTesto()[k].voce);
    for (const CampoSpunta &c : CampiSpunta()) c.casella->Value = OpzioneAttiva(c.voce);
    FormOpt.EvColSel.Value = OpzioneAttiva(kOpzColoreSel);
    FormOpt.EvColNonSel.Value = !OpzioneAttiva(kOpzColoreSel);
    const double colore = std::trunc(OpzioneNumero(kOpzColoreTesto));
    coloreTesto =
        colore >= 0 && colore < FormOpt.LabelCol.Numero() ? static_cast<int>(colore) : kBianco;
    EvidColAtt();
    ControllaSpessore();
    ControllaNumerazioneAtt();
}

void AggiornaOpzioni() {
    for (const CampoSpunta &c : CampiSpunta()) Opzioni[c.voce] = c.casella->Value ? 1.0 : 0.0;
    Opzioni[kOpzColoreSel] = FormOpt.EvColSel.Value ? 1.0 : 0.0;
    Opzioni[kOpzColoreTesto] = double(coloreTesto);
    for (int k = 0; k < kCampiTesto; ++k) {
        const CampoTesto &c = CampiTesto()[k];
        Opzioni[c.voce] = ValoreNumerico(ConPunto(c.casella->Text()));
    }
    // Without a text size no label can be drawn.
    for (const auto &[casella, voce] :
         {CampoTesto{&FormOpt.BaseTxt, kOpzBaseTesto}, {&FormOpt.AltezzaTxt, kOpzAltezzaTesto}}) {
        if (!casella->Text().empty()) continue;
        for (const int azzerata :
             {int{kOpzTestiNodi}, int{kOpzTestiAste}, int{kOpzTestiGusci}, voce})
            Opzioni[azzerata] = 0.0;
    }
}

void ApriFormOpt() {
    MostraOpzioni();
    applicate = false;
    FormOpt.fuoco = &FormOpt.CheckSpGus;
    FormOpt.MostraModale();
}

void ChiudiFormOpt() { FormOpt.Chiudi(); }

void CollegaFormOpt() {
    ModuloOpt &f = FormOpt;
    for (int k = 0; k < f.LabelCol.Numero(); ++k) {
        f.LabelCol[k].didascalia = kColori[k].nome;
        f.LabelCol[k].BackColor = kColori[k].rgb;
        f.LabelCol[k].Click = [k] { LabelCol_Click(k); };
    }
    f.CheckSpGus.Click = ControllaSpessore;
    for (CasellaSpunta *c : {&f.CheckTxtNodi, &f.CheckTxtAste, &f.CheckTxtGusci, &f.CheckTxtElCont})
        c->Click = ControllaNumerazioneAtt;
    f.Salva.Click = Salva_Opzioni;
    f.predefinito = &f.Salva;
    f.Chiudi_.Click = ChiudiFormOpt;
    f.KeyUp = [](int tasto) {
        if (tasto == kTastoEsc) ChiudiFormOpt();
    };
    f.Unload = [] {
        if (applicate) Ridis_Click();
        applicate = false;
    };
}

} // namespace telva
