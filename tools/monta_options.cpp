#include "tools/monta_options.h"

#include "core/machine/program_state.h"
#include <array>
#include <QFileInfo>
#include <QRandomGenerator>

namespace {

constexpr int kMaiorSementeSorteada = 999'999;

struct NomeFormato
{
    QStringView nome;
    Formato formato;
};
constexpr std::array kFormatos{
    NomeFormato{u"tsv", Formato::Tsv}, NomeFormato{u"texto", Formato::Texto},
    NomeFormato{u"html", Formato::Html}, NomeFormato{u"ipuz", Formato::Ipuz}};

QString Uso()
{
    return QStringLiteral("uso: monta --banco BANCO.tes --semente N [--jogos K] [--memoria] "
                          "[--quieto]\n"
                          "           [--formato tsv|texto|html|ipuz] [--titulo TÍTULO] "
                          "[--solucao] [--sem-solucao]");
}

class LeitorOpcoes
{
public:
    explicit LeitorOpcoes(const QStringList &argumentos) : m_argumentos(argumentos) {}

    std::variant<OpcoesMonta, QString> Le()
    {
        for (m_lugar = 1; m_lugar < m_argumentos.size(); ++m_lugar) {
            if (const QString motivo = LeUma(m_argumentos[m_lugar]); !motivo.isEmpty()) {
                return motivo;
            }
        }
        if (m_opcoes.banco.isEmpty() || !m_temSemente) {
            return Uso();
        }
        if (const QString motivo = SemEfeito(); !motivo.isEmpty()) {
            return motivo;
        }
        m_opcoes.solucao = m_opcoes.formato == Formato::Html ? !m_semSolucao : m_solucao;
        return m_opcoes;
    }

private:
    QString LeUma(const QString &nome)
    {
        const std::array chaves{
            std::pair{u"--memoria", &m_opcoes.memoria}, std::pair{u"--quieto", &m_opcoes.quieto},
            std::pair{u"--solucao", &m_solucao}, std::pair{u"--sem-solucao", &m_semSolucao}};
        for (const auto &[chave, valor] : chaves) {
            if (nome == chave) {
                *valor = true;
                return {};
            }
        }
        constexpr std::array comValor{u"--banco", u"--semente", u"--jogos", u"--formato",
                                      u"--titulo"};
        if (std::none_of(comValor.begin(), comValor.end(), [&](auto c) { return nome == c; })) {
            return QStringLiteral("argumento desconhecido: \"%1\"").arg(nome);
        }
        if (++m_lugar >= m_argumentos.size()) {
            return QStringLiteral("falta o valor de %1").arg(nome);
        }
        return LeValor(nome, m_argumentos[m_lugar]);
    }

    QString LeValor(const QString &nome, const QString &valor)
    {
        bool certo = true;
        if (nome == u"--banco") {
            m_opcoes.banco = valor;
            certo = !valor.isEmpty();
        } else if (nome == u"--semente") {
            m_opcoes.semente = valor.toULongLong(&certo);
            m_temSemente = certo;
        } else if (nome == u"--jogos") {
            m_opcoes.jogos = valor.toInt(&certo);
            certo = certo && m_opcoes.jogos >= 1;
        } else if (nome == u"--formato") {
            certo = LeFormato(valor);
        } else {
            m_opcoes.titulo = valor;
            m_temTitulo = true;
        }
        return certo ? QString() : QStringLiteral("%1 não pode ser \"%2\"").arg(nome, valor);
    }

    bool LeFormato(const QString &valor)
    {
        for (const auto &[nome, formato] : kFormatos) {
            if (valor == nome) {
                m_opcoes.formato = formato;
                return true;
            }
        }
        return false;
    }

    /// What was asked for and does not exist in the format.
    [[nodiscard]] QString SemEfeito() const
    {
        const Formato formato = m_opcoes.formato;
        if (m_solucao && formato != Formato::Texto) {
            return QStringLiteral("--solucao só vale com --formato texto");
        }
        if (m_semSolucao && formato != Formato::Html) {
            return QStringLiteral("--sem-solucao só vale com --formato html");
        }
        return m_temTitulo && formato == Formato::Tsv
                   ? QStringLiteral("--titulo não vale com --formato tsv")
                   : QString();
    }

    QStringList m_argumentos;
    qsizetype m_lugar = 0;
    OpcoesMonta m_opcoes;
    bool m_temSemente = false;
    bool m_temTitulo = false;
    bool m_solucao = false;
    bool m_semSolucao = false;
};

OpcoesMonta OpcoesDeArquivoSolto(const QString &banco)
{
    OpcoesMonta opcoes;
    opcoes.banco = banco;
    opcoes.semente = QRandomGenerator::system()->bounded(1u, kMaiorSementeSorteada + 1u);
    opcoes.formato = Formato::Html;
    opcoes.solucao = true;
    // The seed is in the name, so that no sheet takes the place of another.
    opcoes.saida =
        Caminho(QFileInfo(banco).path(), QStringLiteral("Folha-%1.html").arg(opcoes.semente));
    return opcoes;
}

} // namespace

std::variant<OpcoesMonta, QString> LeOpcoesMonta(const QStringList &argumentos)
{
    if (argumentos.size() == 2 && !argumentos[1].startsWith(u"--")) {
        return OpcoesDeArquivoSolto(argumentos[1]);
    }
    return LeitorOpcoes(argumentos).Le();
}
