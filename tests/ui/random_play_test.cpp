#include "tests/ui/support/test_game.h"

#include <gtest/gtest.h>

namespace {

constexpr int kJogos = 100;
constexpr int kGestosPorJogo = 80;

/// A player without a plan: clicks, types, pastes, hovers and orders in any order, by a seed.
class JogadorAoAcaso
{
public:
    JogadorAoAcaso(JogoDeTeste &jogo, std::uint64_t semente) : m_jogo(jogo), m_acaso(semente) {}

    /// One gesture; gives its name.
    const char *Gesto()
    {
        const int sorte = SorteiaNumero(m_acaso, 100);
        if (sorte <= 45) {
            return Digita();
        }
        if (sorte <= 60) {
            return Clica();
        }
        if (sorte <= 75) {
            return Teclado();
        }
        return sorte <= 88 ? Mouse() : Ordena();
    }

private:
    int CelulaOcupada()
    {
        int i = SorteiaNumero(m_acaso, kCelulas);
        while (!m_jogo.d().Ocupada(i)) {
            i = i % kCelulas + 1;
        }
        return i;
    }

    const char *Digita()
    {
        const int cursor = m_jogo.d().estado.Focus;
        const bool certa = cursor != 0 && SorteiaNumero(m_acaso, 10) > 1;
        m_jogo.Digita(certa
                          ? QString(m_jogo.d().Quadrado(cursor).Letra)
                          : QString(QChar(static_cast<char16_t>(SorteiaNumero(m_acaso, 0x2000)))));
        return certa ? "right letter" : "any character";
    }

    const char *Clica()
    {
        if (SorteiaNumero(m_acaso, 2) == 1) {
            JogoDeTeste::Clica(m_jogo.c().Text1(CelulaOcupada()),
                               SorteiaNumero(m_acaso, 4) == 1 ? Qt::RightButton : Qt::LeftButton);
            return "cell";
        }
        JogoDeTeste::Clica(m_jogo.c().Lbt(SorteiaNumero(m_acaso, kItens)));
        return "button";
    }

    const char *Teclado()
    {
        constexpr std::array kTeclas = {Qt::Key_Tab,    Qt::Key_Backtab, Qt::Key_Backspace,
                                        Qt::Key_Delete, Qt::Key_Left,    Qt::Key_Return,
                                        Qt::Key_Escape, Qt::Key_Home};
        const int sorte = SorteiaNumero(m_acaso, 12);
        if (sorte <= 8) {
            m_jogo.Tecla(kTeclas[static_cast<size_t>(sorte - 1)]);
            return "key";
        }
        const std::array textos = {QStringLiteral("ABC"), QStringLiteral("x y"),
                                   QStringLiteral("ç"), QString(3000, u'Z')};
        m_jogo.Cola(textos[static_cast<size_t>(sorte - 9)]);
        return "paste";
    }

    const char *Mouse()
    {
        m_jogo.maquina.agora += m_acaso.Uniforme() * 10;
        JogoDeTeste::Paira(m_jogo.c().Text1(CelulaOcupada()));
        m_jogo.c().Timer3.Tique();
        m_jogo.c().Timer1.Tique();
        if (SorteiaNumero(m_acaso, 2) == 1) {
            JogoDeTeste::Paira(m_jogo.c().Pic_q2);
        }
        m_jogo.c().Timer2.Tique();
        return "hover";
    }

    const char *Ordena()
    {
        switch (SorteiaNumero(m_acaso, 8)) {
        case 1:
            JogoDeTeste::Clica(*m_jogo.c().Label3[1]);
            return "restart";
        case 2:
            JogoDeTeste::Clica(*m_jogo.c().Label3[0]);
            return "first entry";
        default:
            m_jogo.maquina.respostas = {SorteiaNumero(m_acaso, 5) == 1 ? Resposta::Cancelar
                                                                       : Resposta::Ok};
            JogoDeTeste::Clica(m_jogo.c().Label4);
            return "help";
        }
    }

    JogoDeTeste &m_jogo;
    AcasoMersenne m_acaso;
};

} // namespace

TEST(JogoAoAcaso, KeepsItsInvariantsAfterEveryGesture)
{
    JogoDeTeste jogo(7);
    jogo.EncheRanking();
    jogo.Comeca();
    for (int partida = 1; partida <= kJogos; ++partida) {
        JogadorAoAcaso jogador(jogo, static_cast<std::uint64_t>(partida));
        // Some games start late, so that their ends come within reach.
        if (partida % 3 == 0) {
            jogo.ResolveAte(24);
        }
        for (int gesto = 1; gesto <= kGestosPorJogo; ++gesto) {
            const char *nome = jogador.Gesto();
            ASSERT_EQ(jogo.FaltaNoEstado(), QString())
                << "game " << partida << ", gesture " << gesto << ": " << nome;
        }
        if (!jogo.c().Image6.Visible()) {
            JogoDeTeste::Clica(*jogo.c().Label3[0]);
        } else {
            jogo.ResolveAte(kItens);
            JogoDeTeste::Clica(*jogo.c().Label3[0]);
        }
        ASSERT_EQ(jogo.FaltaNoEstado(), QString()) << "new game behind game " << partida;
    }
}
