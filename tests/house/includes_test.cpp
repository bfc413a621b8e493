#include <gtest/gtest.h>
#include <map>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QSet>
#include <vector>

// Who may include whom. The table of rooms is docs/architecture.md's, so that the page and the code
// cannot part company.

namespace {

struct Inclusao
{
    /// Path from the root, with its line: "core/bank/used_words.h:3".
    QString onde;
    QString de;
    QString alvo;
    bool doProjeto = false;
};

QString LeTexto(const QString &nome)
{
    QFile arquivo(QStringLiteral(QUADRELO_RAIZ "/") + nome);
    return arquivo.open(QIODevice::ReadOnly) ? QString::fromUtf8(arquivo.readAll()) : QString();
}

QString SalaDe(const QString &arquivo)
{
    const QStringList partes = arquivo.split(u'/');
    const bool biblioteca = partes[0] == u"core" || partes[0] == u"ui";
    return biblioteca ? partes[0] + u'/' + partes[1] : partes[0];
}

/// A header and its source are one.
QString UnidadeDe(const QString &arquivo)
{
    return arquivo.left(arquivo.lastIndexOf(u'.'));
}

std::vector<Inclusao> LeInclusoes()
{
    static const QRegularExpression padrao(QStringLiteral("^#include ([<\"])([^>\"]+)[>\"]"));
    std::vector<Inclusao> todas;
    for (const char *andar : {"app", "assets", "core", "tools", "ui"}) {
        QDirIterator pasta(QStringLiteral(QUADRELO_RAIZ "/") + QLatin1StringView(andar),
                           {QStringLiteral("*.h"), QStringLiteral("*.cpp")}, QDir::Files,
                           QDirIterator::Subdirectories);
        while (pasta.hasNext()) {
            const QString arquivo = pasta.next().mid(static_cast<int>(sizeof QUADRELO_RAIZ));
            const QStringList linhas = LeTexto(arquivo).split(u'\n');
            for (qsizetype k = 0; k < linhas.size(); ++k) {
                if (const auto achado = padrao.match(linhas[k]); achado.hasMatch()) {
                    todas.push_back({arquivo + u':' + QString::number(k + 1), arquivo,
                                     achado.captured(2), achado.captured(1) == u"\""});
                }
            }
        }
    }
    return todas;
}

/// The table "| `room` | `other`, ... |" of the page.
std::map<QString, QSet<QString>> LeTabela()
{
    static const QRegularExpression nome(QStringLiteral("`([a-z_/]+)`"));
    std::map<QString, QSet<QString>> tabela;
    for (const QString &linha : LeTexto(QStringLiteral("docs/architecture.md")).split(u'\n')) {
        auto achados = nome.globalMatch(linha);
        if (linha.startsWith(QStringLiteral("| `")) && achados.hasNext()) {
            auto &permitidas = tabela[achados.next().captured(1)];
            while (achados.hasNext()) {
                permitidas.insert(achados.next().captured(1));
            }
        }
    }
    return tabela;
}

class Circulos
{
public:
    explicit Circulos(const std::vector<Inclusao> &inclusoes)
    {
        for (const auto &uma : inclusoes) {
            if (uma.doProjeto && UnidadeDe(uma.de) != UnidadeDe(uma.alvo)) {
                m_arestas[UnidadeDe(uma.de)].push_back(uma);
            }
        }
        for (const auto &[unidade, arestas] : m_arestas) {
            Visita(unidade);
        }
    }
    QStringList achados;

private:
    void Visita(const QString &unidade)
    {
        if (m_prontas.contains(unidade) || !m_arestas.contains(unidade)) {
            return;
        }
        m_caminho << unidade;
        for (const Inclusao &uma : m_arestas[unidade]) {
            const QString alvo = UnidadeDe(uma.alvo);
            if (const auto desde = m_caminho.indexOf(alvo); desde >= 0) {
                achados << uma.onde + QStringLiteral(" closes a circle: ") +
                               m_caminho.mid(desde).join(QStringLiteral(" -> ")) +
                               QStringLiteral(" -> ") + alvo;
            } else {
                Visita(alvo);
            }
        }
        m_caminho.removeLast();
        m_prontas.insert(unidade);
    }

    std::map<QString, std::vector<Inclusao>> m_arestas;
    QStringList m_caminho;
    QSet<QString> m_prontas;
};

} // namespace

TEST(House, ArrowsAreThoseOfTheTable)
{
    auto tabela = LeTabela();
    ASSERT_GT(tabela.size(), 10U);
    for (const auto &uma : LeInclusoes()) {
        if (!uma.doProjeto || !uma.alvo.contains(u'/')) {
            continue;
        }
        const QString de = SalaDe(uma.de);
        const QString para = SalaDe(uma.alvo);
        ASSERT_TRUE(tabela.contains(de)) << de.toStdString() << " is no room of the table";
        EXPECT_TRUE(de == para || tabela[de].contains(para))
            << uma.onde.toStdString() << ": " << de.toStdString() << " may not include "
            << uma.alvo.toStdString();
        EXPECT_TRUE(uma.alvo != u"ui/main_form/form1.h" || de == u"app" ||
                    UnidadeDe(uma.de).endsWith(QStringLiteral("/form1")) ||
                    UnidadeDe(uma.de).endsWith(QStringLiteral("/splash")))
            << uma.onde.toStdString() << ": the main form is nobody's business";
    }
}

TEST(House, NoFilesFormACircle)
{
    for (const QString &circulo : Circulos(LeInclusoes()).achados) {
        ADD_FAILURE() << circulo.toStdString();
    }
}

TEST(House, TheCoreKnowsOfQtItsCoreAlone)
{
    static const QRegularExpression doQt(QStringLiteral("^(Q[A-Z]|Qt|q[a-z_]+(/|\\.h)|private/)"));
    for (const auto &uma : LeInclusoes()) {
        if (SalaDe(uma.de).startsWith(QStringLiteral("core/")) && !uma.doProjeto &&
            doQt.match(uma.alvo).hasMatch()) {
            EXPECT_TRUE(QFileInfo::exists(QStringLiteral(QUADRELO_QTCORE "/") + uma.alvo))
                << uma.onde.toStdString() << ": <" << uma.alvo.toStdString() << ">";
        }
    }
}
