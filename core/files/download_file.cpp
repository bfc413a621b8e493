#include "core/files/download_file.h"

#include "core/machine/program_state.h"
#include <algorithm>
#include <array>
#include <QFile>
#include <QUrl>

namespace {

/// Most bytes of a name in UTF-8; file systems take 255, and a number may have to go in.
constexpr qsizetype kMaximoDoNome = 180;
constexpr qsizetype kMaximaExtensao = 16;
constexpr int kMaximoDeTentativas = 999;

QString UltimoElemento(const QString &endereco)
{
    // Cut first and unpacked then, so that a packed separator opens no folder.
    const QString elemento = QUrl(endereco.trimmed()).fileName(QUrl::FullyEncoded);
    return QUrl::fromPercentEncoding(elemento.toLatin1());
}

bool Inofensivo(QChar letra)
{
    switch (letra.category()) {
    case QChar::Other_Control:
    case QChar::Other_Format: // among them those that turn the direction of the text
    case QChar::Other_NotAssigned:
    case QChar::Separator_Line:
    case QChar::Separator_Paragraph:
        return false;
    default:
        return !QStringView(u"<>:\"/\\|?*").contains(letra);
    }
}

/// Without dots and blanks at its ends: the first hide a file, the last do not survive on every
/// system.
QString Apara(const QString &nome)
{
    const auto some = [](QChar letra) { return letra == u'.' || letra.isSpace(); };
    const auto inicio = std::find_if_not(nome.begin(), nome.end(), some);
    const auto fim = std::find_if_not(nome.rbegin(), std::make_reverse_iterator(inicio), some);
    return nome.sliced(inicio - nome.begin(), fim.base() - inicio);
}

/// Whether a system takes the name for a device, whatever its extension.
bool NomeDeDispositivo(const QString &nome)
{
    static constexpr std::array kFixos = {u"CON", u"PRN", u"AUX", u"NUL", u"CONIN$", u"CONOUT$"};
    const QString base = nome.section(u'.', 0, 0).trimmed().toUpper();
    const bool fixo = std::any_of(kFixos.begin(), kFixos.end(),
                                  [&base](const char16_t *um) { return base == QStringView(um); });
    const bool porta =
        base.startsWith(QStringLiteral("COM")) || base.startsWith(QStringLiteral("LPT"));
    return fixo ||
           (porta && base.size() == 4 && QStringView(u"0123456789¹²³").contains(base.back()));
}

/// Where the extension begins, its dot included; the end of the name if it has none.
qsizetype LugarDaExtensao(const QString &nome)
{
    const qsizetype ponto = nome.lastIndexOf(u'.');
    return ponto > 0 && nome.size() - ponto <= kMaximaExtensao ? ponto : nome.size();
}

QString Encurta(const QString &nome)
{
    const qsizetype ponto = LugarDaExtensao(nome);
    const QString extensao = nome.sliced(ponto);
    QString base = nome.first(std::min(ponto, kMaximoDoNome));
    while (!base.isEmpty() && (base + extensao).toUtf8().size() > kMaximoDoNome) {
        base.chop(1);
    }
    if (!base.isEmpty() && base.back().isHighSurrogate()) {
        base.chop(1);
    }
    return base + extensao;
}

} // namespace

QString NomeDeArquivo(const QString &endereco)
{
    QString nome = UltimoElemento(endereco);
    std::replace_if(
        nome.begin(), nome.end(), [](QChar letra) { return !Inofensivo(letra); }, QChar(u'_'));
    nome = Apara(Encurta(Apara(nome)));
    if (nome.isEmpty()) {
        return QStringLiteral("Quadrelo");
    }
    return NomeDeDispositivo(nome) ? u'_' + nome : nome;
}

QString GuardaArquivo(const QString &de, const QString &pasta, const QString &nome)
{
    const qsizetype ponto = LugarDaExtensao(nome);
    for (int vez = 1; vez <= kMaximoDeTentativas; ++vez) {
        const QString numero = vez == 1 ? QString() : QStringLiteral(" (%1)").arg(vez);
        const QString lugar = Caminho(pasta, nome.first(ponto) + numero + nome.sliced(ponto));
        // Never over a file that is there.
        if (QFile::rename(de, lugar)) {
            return lugar;
        }
    }
    return {};
}
