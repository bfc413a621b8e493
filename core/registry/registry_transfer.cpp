#include "core/files/codepage.h"
#include "core/registry/regedit4.h"
#include "core/registry/registry_access.h"
#include "core/registry/registry_key.h"
#include <QFile>
#include <QFileInfo>
#include <utility>

namespace {

bool Escreve(const QString &arquivo, QIODevice::OpenMode modo, const QString &texto)
{
    QFile saida(arquivo);
    const QByteArray bytes = ParaCodePage(texto);
    return saida.open(modo) && saida.write(bytes) == bytes.size() && saida.flush();
}

/// Carries out one value line in an open key.
struct Aplica
{
    ChaveAberta &chave;
    const QString &nome;

    void operator()(const QString &texto) const
    {
        chave.GravaTexto(nome, texto);
        if (nome == u"@" && texto.isEmpty()) {
            chave.Apaga(QString());
        }
    }
    void operator()(const BinarioReg4 &binario) const
    {
        chave.GravaBinario(nome, clsRegistryAccess::StrToBin(binario.texto));
    }
    void operator()(std::uint32_t numero) const
    {
        chave.GravaDword(nome, static_cast<std::int32_t>(numero));
    }
    void operator()(ApagaReg4) const { chave.Apaga(nome); }
};

} // namespace

int clsRegistryAccess::ExportToReg(const QString &sPath, const QString &sRegFile,
                                   bool IncludeSubkeys, const SaidaDaExportacao &Output)
{
    if (!Escreve(sRegFile, QIODevice::WriteOnly | QIODevice::NewOnly, CabecalhoReg4())) {
        return 0;
    }
    return ExportaChave(sPath, sRegFile, IncludeSubkeys, Output) ? 1 : 0;
}

bool clsRegistryAccess::ExportaChave(const QString &sPath, const QString &sRegFile, bool subchaves,
                                     const SaidaDaExportacao &saida)
{
    const QString caminho = RaizesPorExtenso(sPath);
    if (saida.mostra) {
        if (saida.deixaEventos) {
            saida.deixaEventos();
        }
        saida.mostra(caminho);
    }
    if (!Escreve(sRegFile, QIODevice::WriteOnly | QIODevice::Append, BlocoDaChave(caminho))) {
        return false;
    }
    QStringList nomes;
    if (subchaves) {
        EnumKeys(caminho, nomes);
    }
    for (const QString &nome : std::as_const(nomes)) {
        if (!ExportaChave(caminho + u'\\' + nome, sRegFile, subchaves, saida)) {
            return false;
        }
    }
    return true;
}

QString clsRegistryAccess::BlocoDaChave(const QString &caminho)
{
    QString bloco = ChaveReg4(caminho);
    const QString nenhum(1, QChar(u'\0'));
    if (const QString padrao = ReadString(caminho, QString(), nenhum); padrao != nenhum) {
        bloco += PadraoReg4(padrao);
    }
    QStringList nomes;
    std::vector<ValorListado> valores;
    EnumValues(caminho, nomes, valores, kTipoTexto);
    for (std::size_t k = 0; k < valores.size(); ++k) {
        const QString &nome = nomes[static_cast<qsizetype>(k)];
        bloco += nome.isEmpty() ? QString() : TextoReg4(nome, std::get<QString>(valores[k]));
    }
    EnumValues(caminho, nomes, valores, kTipoBinario);
    for (std::size_t k = 0; k < valores.size(); ++k) {
        bloco += BinarioComoReg4(nomes[static_cast<qsizetype>(k)], std::get<QString>(valores[k]));
    }
    EnumValues(caminho, nomes, valores, kTipoDword);
    for (std::size_t k = 0; k < valores.size(); ++k) {
        bloco += DwordReg4(nomes[static_cast<qsizetype>(k)], std::get<std::int32_t>(valores[k]));
    }
    return bloco + FimDaChaveReg4();
}

int clsRegistryAccess::ImportFromReg(const QString &sRegFile)
{
    CreateKeyIfDoesntExists = true;
    QFile entrada(sRegFile);
    // A device or a pipe could be read for ever.
    if (!QFileInfo(sRegFile).isFile() || !entrada.open(QIODevice::ReadOnly)) {
        return 0;
    }
    const QByteArray bytes = entrada.readAll();
    LeitorReg4 leitor(bytes);
    if (entrada.error() != QFileDevice::NoError || !leitor.CabecalhoServe()) {
        return 0;
    }
    ImportaItens(leitor);
    return 1;
}

void clsRegistryAccess::ImportaItens(LeitorReg4 &leitor)
{
    // A key stays open for all its lines, so that its path, which may be very long, is walked only
    // once.
    ChaveAberta chave(m_armazem, 0);
    CaminhoRegistro caminho;
    bool tentaCriar = false;
    while (const auto item = leitor.Proximo()) {
        if (const auto *secao = std::get_if<SecaoReg4>(&*item)) {
            // Closed first: the platform keeps a deleted key's name taken as long as the key is
            // open.
            chave = ChaveAberta(m_armazem, 0);
            caminho = LeCaminho(secao->chave);
            if (secao->apaga) {
                KillKey(secao->chave);
            } else {
                chave = Abre(caminho, kAcessoEscrita);
            }
            tentaCriar = !chave;
            continue;
        }
        const auto &linha = std::get<LinhaReg4>(*item);
        if (tentaCriar && !std::holds_alternative<ApagaReg4>(linha.valor)) {
            chave = AbreParaGravar(caminho, true);
            tentaCriar = false;
        }
        std::visit(Aplica{chave, linha.nome}, linha.valor);
    }
}
