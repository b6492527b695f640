#include "Generatore.h"
#include "ScriviLavoro.h"
#include "model/leggstr_cond.h"
#include "model/struttura.h"
#include "model/tabelle_cond.h"
#include "sostegno/Banco.h"
#include "startup/avvio.h"
#include "startup/direttori_cond.h"
#include <algorithm>
#include <random>
namespace telva::prove {
struct Leggstr : Banco {
    int LeggiTesto(const std::string &struttura) { // its flag; -1 when the program ended
        DirLavoro = Radice();
        Scrivi("STRUTTUR.STR", struttura);
        messaggi.clear();
        std::int16_t ok = 0;
        return Esegui([&] { LeggiStruttura(ok); }) ? ok : -1;
    }
};

TEST_F(Leggstr, OgniValoreVaAlSuoPosto) {
    const std::string testo =
        "x RELEASE 4\r\n 5 punti\r\n1.5,-2,3\r\n5000 1 1\n4999.9\t-4999.9 x\r\n2 -5000 9 2 1 5000\n"
        "2\r\n\t 4 \t3  9\r\n32000 5\r\n1.5 2.5 3.5 6\r\n-4 6x\r\n3\n1,0 2\t3\r\n7\t1 2 3\r\n"
        "0 0 0 0\n\n0 0 0 0\n9\n1 x\n0 1 0 -1\r\n8 9 10 1.7 4\n1\nx\n0\n1\nx\n1\n citt\xE0 \r\nx\n";
    // A short or broken envelope file leaves no envelope at all; a bar without name has none.
    for (const char *file : {"1 2", "1 2 3 4 5 6\n7 x 9 10 11 12\n", "1,2,3\n4 5 6\n7 8 9 1 1 2"}) {
        Scrivi("Ingombri.tmp", file);
        EXPECT_EQ(LeggiTesto(testo), 1);
        const double c = file[1] == ',' ? 1 : 0;
        EXPECT_TRUE(IngIX[0] == c && IngJZ[0] == 6 * c && IngIX[1] == 0 && IngJZ[2] == 2 * c) << c;
    }
    // Three points lie outside the box of +-5000, by one coordinate each; the third has no Z.
    EXPECT_EQ(std::vector({PuntoX[1], PuntoZ[4], XMin, XMax, YMin, YMax, ZMin, ZMax}),
              std::vector<double>({5000, 5000, 1.5, 4999.9, -4999.9, -2, 0, 3}));
    EXPECT_EQ(std::vector({TipoPtNodo[0], NomeNodo[0], PuntoNodo[1], TipoPtNodo[1], ColNodo[1],
                           NomeNodo[1], VincoloNodo[1], DatoAsta5[0], ColGuscio[0]}),
              std::vector<std::int16_t>({3, 32000, 2, 2, 4, -4, 6, 0, 4}));
    EXPECT_EQ(TestoFinale[0], " città ");
}

TEST_F(Leggstr, UnFileInaccettabileSiSpiegaConRigaEMotivo) {
    std::string detti;
    for (const std::string testo :
         {"20002\n", "0\n0\n20002\n", "0\n0\n0\n16002\n", "0\n0\n0\n0\n0\n0\n0\n202\n", "-40000\n",
          "0\n1\n0 40000 1\n5 0\n", "0\n0\n1\n0 0 70000 1\n", "0\n1\n20001 1 1\n5 0\n0\n0\n",
          "0\n0\n1\n-1 0 1 1\n5\n0\n", "0\n0\n0\n1\n0 0 -1 -1\n1 1\n", "2\n0 0 0\n",
          "0\n1\n0 0 0\n", "0\n0\n1\n0 0 0 0\n", "0\n0\n0\n1\n0 0 0 0", "0\n0\n0\n0\n3\nx\n",
          "0\n0\n0\n0\n0\n0\n0\n2\na\nb\nc\n"}) {
        EXPECT_TRUE(LeggiTesto("Release\n" + testo) == -1 && codiceFine == 1) << testo;
        const std::string detto = messaggi.empty() ? "" : messaggi[0].testo;
        EXPECT_EQ(messaggi, std::vector({Messaggio{detto, Icona::Critica, "ERRORE"}}));
        const std::string inizio = "File " + DirLavoro + "\\STRUTTUR.STR, riga ";
        detti += detto.starts_with(inizio) ? detto.substr(inizio.size(), 9) + "|" : detto + "!";
    }
    EXPECT_EQ(detti,
              "2: troppi|4: troppe|5: troppi|9: troppi|2: numero|4: numero|5: numero|4: punto |"
              "5: nodo -|6: nodo -|4: il fil|5: il fil|6: il fil|7: il fil|8: il fil|13: il fi|");
    EXPECT_TRUE(LeggiTesto("4.0\nRelease") == -1 && codiceFine == 0);
    const char *testo = "Versione 3.8 o precedente. Caricare e risalvare la struttura in 'Zorel'";
    EXPECT_EQ(messaggi, std::vector({Messaggio{testo, Icona::Critica, "Attenzione"}}));
}

TEST_F(Leggstr, UnaStrutturaTroncataSiLeggeOSiSpiega) {
    const std::string intera = Telaio().Struttura();
    Installa();
    ScriviLavoro(Telaio());
    for (std::size_t n = 0; n <= intera.size(); ++n) {
        AzzeraProgramma();
        messaggi.clear();
        Scrivi("lavori/prova1/STRUTTUR.STR", intera.substr(0, n));
        const bool prosegue = Avvia();
        ASSERT_EQ(messaggi.size(), prosegue ? 0u : 1u) << n;
    }
    EXPECT_EQ(NomeGuscio[3], 4);
}

TEST_F(Leggstr, UnLavoroAPienaCapacitaSiRileggeUgualeESiConverte) {
    generatore::Parametri parametri;
    parametri.Misura = generatore::Taglia::Piena;
    generatore::Lavoro l = generatore::Genera(parametri);
    std::string cartella = DirLavoro = Radice();
    std::replace(cartella.begin(), cartella.end(), '\\', '/');
    generatore::ScriviLavoro(cartella, l);
    std::int16_t ok = 0;
    EXPECT_EQ(LeggiElCont(), "");
    LeggiStruttura(ok);
    EXPECT_TRUE(ok == 1 && messaggi.empty());
    EXPECT_EQ(NumPunti + NumNodi + NumAste + NumGusci + NumElCont, 3 * 20001 + 16001 + 2000);
    for (int i = 0; i < 20001; ++i) {
        l.Punti[i] = {PuntoX[i], PuntoY[i], PuntoZ[i]};
        const generatore::Punto ingI{IngIX[i], IngIY[i], IngIZ[i]},
            ingJ{IngJX[i], IngJY[i], IngJZ[i]};
        l.Nodi[i] = {PuntoNodo[i], TipoPtNodo[i], ColNodo[i], NomeNodo[i], VincoloNodo[i]};
        l.Aste[i] = {NodoIAsta[i],    NodoJAsta[i],  TipoLinAsta[i],
                     ColAsta[i],      NomeAsta[i],   SezioneAsta[i],
                     SvincoloAsta[i], OrientAsta[i], DatoAsta5[i],
                     DatoAsta6[i],    ingI,          ingJ};
    }
    for (int i = 0; i < 16001; ++i) {
        const auto &n = NodiGuscio[i];
        l.Gusci[i] = {{n[0], n[1], n[2], n[3]}, TrattGuscio[i],    NomeGuscio[i],
                      SpessoreGuscio[i],        l.Gusci[i].Valore, ColGuscio[i]};
    }
    for (int k = 0; k < 2000; ++k) {
        const std::vector<int> aste(&AsteElCont(k, 0), &AsteElCont(k, 0) + NumAsteElCont[k]);
        l.ElementiContinui[k] = {NumeroElCont[k], DatoElCont2[k], NomeElCont[k], aste};
    }
    generatore::ScriviLavoro(cartella + "/riletto", l);
    for (const std::string file : {"STRUTTUR.STR", "Ingombri.tmp", "el_conti.tmp"})
        EXPECT_TRUE(Leggi(file) == Leggi("riletto/" + file)) << file;
    // The conversion does what searching the bars from the first one on does.
    std::mt19937 caso(11);
    const auto nome = [&] { return static_cast<std::int16_t>(caso() % 30000 - 9); };
    std::generate_n(NomeAsta.Dati(), 20001, nome);
    for (int k = 0; k < 2000; ++k) AsteElCont(k, 0) = nome();
    const auto prima = AsteElCont;
    ConvertiAsteElCont();
    for (int k = 0; k < 2000; ++k) {
        int b = 0;
        while (b < 20001 && NomeAsta[b] != prima(k, 0)) ++b;
        EXPECT_EQ(AsteElCont(k, 0), b < 20001 && NumAsteElCont[k] > 0 ? b : prima(k, 0)) << k;
    }
}
} // namespace telva::prove
