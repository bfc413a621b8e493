#include "core/files/ini_file.h"

#include "core/files/codepage.h"
#include "core/files/whole_file.h"

namespace {

/// How often a change starts over because somebody wrote the file while it was being written.
constexpr int kTentativas = 20;

} // namespace

QString LeIni(const QString &secao, const QString &chave, const QString &arquivo,
              const QString &padrao)
{
    return LoteIni(arquivo).Le(secao, chave, padrao);
}

bool WritePrivateProfileStringA(const QString &secao, const QString &chave, const QString &valor,
                                const QString &arquivo)
{
    return MudaIni(arquivo, [&](LoteIni &lote) { lote.Escreve(secao, chave, valor); });
}

LoteIni::LoteIni(const QString &arquivo)
    : m_base(LeArquivo(arquivo)), m_texto(m_base.value_or(QByteArray()))
{
}

QString LoteIni::Le(const QString &secao, const QString &chave, const QString &padrao) const
{
    const auto valor = m_texto.Valor(ParaCodePage(secao), ParaCodePage(chave));
    return valor.isEmpty() ? padrao : DeCodePage(valor);
}

void LoteIni::Escreve(const QString &secao, const QString &chave, const QString &valor)
{
    m_texto.Escreve(ParaCodePage(secao), ParaCodePage(chave), ParaCodePage(valor));
    m_mudou = true;
}

bool MudaIni(const QString &arquivo, const std::function<void(LoteIni &)> &muda)
{
    const TravaDeArquivo trava(arquivo);
    for (int tentativa = 0; tentativa < kTentativas; ++tentativa) {
        LoteIni lote(arquivo);
        if (!lote.Legivel()) {
            return false;
        }
        muda(lote);
        if (!lote.m_mudou) {
            return true;
        }
        const auto troca = TrocaArquivo(arquivo, lote.m_texto.Bytes(),
                                        [&] { return LeArquivo(arquivo) == lote.m_base; });
        if (troca != Troca::Recusada) {
            return troca == Troca::Feita;
        }
    }
    return false;
}
