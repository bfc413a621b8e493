#include "core/registry/registry_path.h"

#include "core/files/codepage.h"
#include <algorithm>
#include <array>

namespace {

struct Raiz
{
    QStringView curto, longo;
    ChaveRegistro chave;
};

constexpr std::array<Raiz, kQtdRaizes> kRaizes = {{
    {u"HKCU", u"HKEY_CURRENT_USER", 0x80000001},
    {u"HKLM", u"HKEY_LOCAL_MACHINE", 0x80000002},
    {u"HKCR", u"HKEY_CLASSES_ROOT", 0x80000000},
    {u"HKUS", u"HKEY_USERS", 0x80000003},
    {u"HKPD", u"HKEY_PERFORMANCE_DATA", 0x80000004},
    {u"HKDD", u"HKEY_DYN_DATA", 0x80000006},
    {u"HKCC", u"HKEY_CURRENT_CONFIG", 0x80000005},
}};

constexpr const Raiz &kUsuario = kRaizes[0];
constexpr const Raiz &kMaquina = kRaizes[1];

/// The root whose name `forma` stands at the start of `texto`, or nullptr.
const Raiz *RaizNoComeco(QStringView texto, QStringView Raiz::*forma)
{
    if (texto[0] != u'H' && texto[0] != u'h') {
        return nullptr;
    }
    const auto *achada = std::find_if(kRaizes.begin(), kRaizes.end(), [&](const Raiz &raiz) {
        return texto.startsWith(raiz.*forma, Qt::CaseInsensitive);
    });
    return achada == kRaizes.end() ? nullptr : &*achada;
}

/// `texto` with each root's name `de` replaced by its name `para`. One pass is enough: no
/// replacement makes a new name with what stands beside it.
QString TrocaRaizes(const QString &texto, QStringView Raiz::*de, QStringView Raiz::*para)
{
    QString resultado;
    resultado.reserve(texto.size());
    for (qsizetype k = 0; k < texto.size();) {
        const Raiz *raiz = RaizNoComeco(QStringView(texto).sliced(k), de);
        if (raiz != nullptr) {
            resultado += raiz->*para;
            k += (raiz->*de).size();
        } else {
            resultado += texto[k++];
        }
    }
    return resultado;
}

} // namespace

CaminhoRegistro LeCaminho(const QString &sPath)
{
    const QString curto = TrocaRaizes(sPath, &Raiz::longo, &Raiz::curto);
    const auto barra = curto.indexOf(u'\\');
    CaminhoRegistro caminho;
    caminho.raiz = curto.left(4).toUpper();
    caminho.sub = barra < 0 ? QByteArray() : ParaCodePage(curto.sliced(barra + 1));
    for (const Raiz &raiz : kRaizes) {
        if (caminho.raiz == raiz.curto) {
            caminho.chave = raiz.chave;
        }
    }
    return caminho;
}

CaminhoRegistro SobUsuario(const CaminhoRegistro &caminho)
{
    return {kUsuario.curto.toString(), kUsuario.chave, caminho.sub};
}

bool EhDaMaquina(const CaminhoRegistro &caminho)
{
    return caminho.chave == kMaquina.chave;
}

QString RaizesPorExtenso(const QString &sPath)
{
    return TrocaRaizes(sPath, &Raiz::curto, &Raiz::longo);
}
