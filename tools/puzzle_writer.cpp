#include "tools/puzzle_writer.h"

#include "tools/paper/formats.h"
#include <QFileInfo>

namespace {

QByteArray LinhasTsv(int jogo, const Tabuleiro &tabuleiro)
{
    QByteArray linhas;
    for (int n = 1; n <= tabuleiro.QtdItens; ++n) {
        const RegistroItem &item = tabuleiro.ItemPalavra[static_cast<size_t>(n)];
        linhas += QByteArray::number(jogo) + '\t' + QByteArray::number(n) + '\t' +
                  item.Sentido.toLatin1() + '\t' + QByteArray::number(item.Ponto) + '\t' +
                  item.Palavra.toUtf8() + '\n';
    }
    return linhas;
}

} // namespace

Escritor::Escritor(const OpcoesMonta &opcoes, int perguntas) : m_opcoes(opcoes)
{
    m_origem.titulo = opcoes.titulo;
    m_origem.banco = QFileInfo(opcoes.banco).fileName();
    m_origem.perguntas = perguntas;
    m_origem.semente = opcoes.semente;
    m_origem.memoria = opcoes.memoria;
}

QByteArray Escritor::Inicio() const
{
    return m_opcoes.formato == Formato::Html ? HtmlInicio(m_opcoes.titulo) : QByteArray();
}

QByteArray Escritor::Jogo(int jogo, const Tabuleiro &tabuleiro)
{
    if (m_opcoes.formato == Formato::Tsv) {
        return LinhasTsv(jogo, tabuleiro);
    }
    m_origem.jogo = jogo;
    const Folha folha = FazFolha(tabuleiro);
    if (m_opcoes.formato == Formato::Texto) {
        return TextoDaFolha(folha, m_origem, m_opcoes.solucao);
    }
    if (m_opcoes.formato == Formato::Ipuz) {
        return IpuzDaFolha(folha, m_origem);
    }
    if (m_opcoes.solucao) {
        m_solucoes += HtmlSolucao(folha, m_origem);
    }
    return HtmlFolha(folha, m_origem);
}

QByteArray Escritor::Fim() const
{
    return m_opcoes.formato == Formato::Html ? m_solucoes + HtmlFim() : QByteArray();
}
