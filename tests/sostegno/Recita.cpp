#include "sostegno/Recita.h"

#include "selection/selezione.h"
#include "startup/basCommon_cond.h"
#include "ui/controlli/FormTelva.h"
#include "ui/gesto.h"
#include "view/inquadra.h"
#include <algorithm>
#include <cctype>
#include <cstdio>
#include <sstream>

namespace telva::prove {
void Recita(std::vector<Messaggio> &messaggi, const std::string &copione) {
    ModuloTelva &f = FormTelva;
    const FinestraDisegno &z = FinestraZoom;
    std::istringstream s(copione);
    for (std::string t; s >> t;) {
        const char c = t[0];
        float x = 0, y = 0;
        std::sscanf(t.c_str() + 1, "%f,%f", &x, &y);
        for (const VoceMenu *v : f.voci)
            if (v->NomeControllo() == t) v->Click();
        if (c == 'm' || c == 't' || c == 's') f.Disegno.MouseMove(c == 't' ? 4 : 0, 0, x, y);
        if (c == 's' || c == 'd' || c == 'c')
            f.Disegno.MouseDown(c == 's' ? 1 : 2 * ('e' - c), 0, x, y);
        if (c == 'u') f.Disegno.MouseUp(4, 0, x, y);
        if (c == 'b') f.Disegno.DblClick();
        if (c == 'p') f.Disegno.CatturaPersa();
        if (c == 'k') f.OptElem[static_cast<int>(x)].Seleziona();
        if (c == 'w') f.Width = x, f.Resize();
        if (c == '=') f.Risposta.Text = t.substr(1), f.Risposta.KeyDown(13);
        if (c == 'x') f.IntX[1].Text = t.substr(1), f.IntX[1].KeyDown(13);
        if (c == 'z') f.IntZ[0].Text = t.substr(1), f.IntZ[0].KeyDown(13);
        if (std::isdigit(c)) f.KeyPress(std::stoi(t));
        if (std::isalnum(c) || c == '=') continue;
        std::ostringstream v;
        if (c == '>') v << f.StringaSel.Caption();
        if (c == '"') v << f.SottoFunAttiva.Caption();
        if (c == '[') v << f.LabCoord.Caption();
        if (c == '@') v << z.primaX << "," << z.secondaX << "," << z.primaY << "," << z.secondaY;
        if (c == '#')
            v << +CodFunAttiva << +CodSottoFun << PrimoAngolo << SpostaInCorso << ModoZoom
              << ModoSposta << FinestraAutomatica << (f.Disegno.Shape.Visible ? "r" : "")
              << (f.Disegno.LineSposta.Visible ? "l" : "");
        for (const VoceMenu *voce : f.Selezioni.voci)
            if (c == '%') v << "-x"[voce->Enabled];
        for (; c == '!' && !messaggi.empty(); messaggi.erase(messaggi.begin())) {
            int k = 0;
            while (k < 23 && Messaggi[k] != messaggi[0].testo) ++k;
            v << messaggi[0].titolo[0] << (k < 23 ? std::to_string(k) : messaggi[0].testo);
        }
        std::string visto = c + v.str();
        std::ranges::replace(visto, ' ', '_');
        EXPECT_EQ(visto, t) << copione << "\nat " << s.tellg();
    }
}
} // namespace telva::prove
