// Selection as a whole: the compact list and which commands are enabled.
#include "model/struttura.h"
#include "selection/schede_sel.h"
#include "selection/selezione.h"
#include "sostegno/Banco.h"
#include "ui/controlli/FormTelva.h"
#include <random>
#include <set>
#include <sstream>

namespace telva::prove {
void Recita(std::vector<Messaggio> &messaggi, const std::string &copione); // puntatore_prova.cpp

using Elementi = std::vector<std::pair<int, int>>; // name and flag

// The rules as they are told: neighbours exchanged, then run by run.
static std::string Riferimento(Elementi e) {
    for (std::size_t giro = 0; giro < e.size(); ++giro)
        for (std::size_t i = 1; i < e.size(); ++i)
            if (e[i - 1].first > e[i].first) std::swap(e[i - 1], e[i]);
    Elementi tratti; // first and last; a first one that is selected stands twice
    for (const auto &[nome, sel] : e) {
        const int a = nome > 0 && sel != 1 ? -nome : nome;
        auto &[inizio, ultimo] = tratti.empty() ? e[0] : tratti.back();
        if (tratti.empty() || (a > 0 && a != ultimo + 1))
            tratti.resize(tratti.empty() && a > 0 ? 2 : tratti.size() + 1, {a, a});
        else if (a > 0)
            (inizio < 1 ? inizio : ultimo) = a;
    }
    std::string lista;
    for (const auto &[inizio, ultimo] : tratti) {
        if (inizio >= 1) lista += (lista.empty() ? "" : ",") + std::to_string(inizio);
        if (inizio >= 1 && ultimo > inizio) lista += "-" + std::to_string(ultimo);
    }
    return lista;
}

TEST_F(Banco, ListaCompatta) {
    Elementi e;
    const auto lista = [&] {
        NumNodi = 0;
        for (const auto &[nome, sel] : e) {
            NomeNodo[NumNodi] = static_cast<std::int16_t>(nome);
            SelNodo[NumNodi++] = static_cast<std::int16_t>(sel);
        }
        return FormattaListaSel(OrdinaNumeriSel(kNodiTipo));
    };
    std::istringstream casi(R"(= 7- 9- = 7+ =7,7 8- 7+ 9- =7,7 1+ 2+ 3+ =1,1-3 9+ 4+ =4,4,9
        1+ 2+ 5+ =1,1-2,5 1- 2+ 3- 4+ 5+ =2,4-5 0+ 1+ =1 0+ 1+ 2+ 3+ =1,2-3 -3+ 2+ 3+ =2-3
        -2- 3+ =3 4+ 4+ =4,4,4 4- 4+ 5+ =4-5 4+ 4- 5+ =4,4-5 32767+ =32767,32767)");
    for (std::string t; casi >> t;)
        if (t[0] != '=') {
            e.emplace_back(std::stoi(t), t.back() == '+');
        } else {
            EXPECT_EQ(lista(), t.substr(1));
            e.clear();
        }
    std::mt19937 caso(7);
    for (int giro = 0; giro < 3000; ++giro) {
        std::set<std::int16_t> scelti;
        e.resize(caso() % 30);
        for (auto &[nome, sel] : e) {
            nome = static_cast<int>(caso() % 36) - 4 + giro % 3 * 240, sel = caso() % 3 != 0;
            if (sel == 1 && nome > 0) scelti.insert(static_cast<std::int16_t>(nome));
        }
        std::vector<std::int16_t> riletti;
        LeggiLista(lista(), kCapacitaNomi, riletti);
        ASSERT_EQ(lista(), Riferimento(e));
        ASSERT_EQ(std::set(riletti.begin(), riletti.end()), scelti) << lista();
    }
}

TEST_F(Banco, ComandiAbilitatiPerTipoEFunzione) {
    Apri(Telaio());
    const std::string copione = R"(%------------- k3 %------------- k0 Aggiungi %xxx-------xxx k1
        %xx-x-xx-xx-xx k2 %xx--xx-x---xx k3 %xx-x-xx-x--xx k4 %xxxxxxxxxxxxx k0 %xxx-------xxx 27
        %------------- k3 Rimuovi %xx-x-xx-x--xx RimTutto %xx-x-xx-x--xx 27 RimTutto 27
        %------------- RimTutto %-------------)";
    Recita(messaggi, copione);
}
} // namespace telva::prove
