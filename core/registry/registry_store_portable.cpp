#include "core/registry/registry_store_portable.h"

#include "core/files/whole_file.h"
#include "core/registry/registry_tree.h"

namespace {

/// Single rights out of the access masks.
constexpr std::uint32_t kLeValores = 0x1;
constexpr std::uint32_t kGravaValores = 0x2;
constexpr std::uint32_t kListaChaves = 0x8;
constexpr std::uint32_t kNenhumDireito = 0;

bool EhRaiz(ChaveRegistro chave)
{
    return chave >= kPrimeiraRaiz && chave < kPrimeiraRaiz + kQtdRaizes;
}

/// Hands out a value as far as there is room for it; without `espaco` its type and size.
CodigoRegistro Entrega(const ValorGuardado &valor, std::optional<std::uint32_t> espaco,
                       DadosRegistro &conteudo)
{
    conteudo = {valor.tipo, static_cast<std::uint32_t>(valor.dados.size()), {}};
    if (espaco && conteudo.tamanho > *espaco) {
        return CodigoRegistro::MaisDados;
    }
    if (espaco) {
        conteudo.dados = valor.dados;
    }
    return CodigoRegistro::Sucesso;
}

} // namespace

RegistroPortatil::RegistroPortatil()
{
    for (int k = 0; k < kQtdRaizes; ++k) {
        m_raizes.push_back(std::make_shared<NoRegistro>());
    }
}

RegistroPortatil::RegistroPortatil(const QString &arquivo) : RegistroPortatil()
{
    m_arquivo = arquivo;
    const auto bytes = LeArquivo(arquivo);
    m_legivel = bytes.has_value();
    LeArvores(bytes.value_or(QByteArray()), m_raizes);
}

RegistroPortatil::~RegistroPortatil()
{
    Salva();
}

bool RegistroPortatil::Salva()
{
    if (m_arquivo.isEmpty() || !m_mudou) {
        return true;
    }
    // What could not be read is not known, so nothing takes its place.
    if (!m_legivel || TrocaArquivo(m_arquivo, EscreveArvores(m_raizes)) != Troca::Feita) {
        return false;
    }
    m_mudou = false;
    return true;
}

CodigoRegistro RegistroPortatil::NoDaChave(ChaveRegistro chave, std::uint32_t direito,
                                           std::shared_ptr<NoRegistro> &no) const
{
    if (EhRaiz(chave)) {
        no = m_raizes[chave - kPrimeiraRaiz];
        return CodigoRegistro::Sucesso;
    }
    const auto achada = m_abertas.constFind(chave);
    if (achada == m_abertas.cend()) {
        return CodigoRegistro::ChaveInvalida;
    }
    if (achada->no->apagado) {
        return CodigoRegistro::ChaveApagada;
    }
    no = achada->no;
    return (achada->acesso & direito) == direito ? CodigoRegistro::Sucesso
                                                 : CodigoRegistro::AcessoNegado;
}

ChaveRegistro RegistroPortatil::Abre(std::shared_ptr<NoRegistro> no, std::uint32_t acesso)
{
    do {
        ++m_ultimaChave;
    } while (m_ultimaChave == 0 || EhRaiz(m_ultimaChave) || m_abertas.contains(m_ultimaChave));
    m_abertas.insert(m_ultimaChave, {std::move(no), acesso});
    return m_ultimaChave;
}

CodigoRegistro RegistroPortatil::RegCreateKeyA(ChaveRegistro base, const QByteArray &sub,
                                               ChaveRegistro &chave)
{
    std::shared_ptr<NoRegistro> no;
    if (const auto codigo = NoDaChave(base, kNenhumDireito, no);
        codigo != CodigoRegistro::Sucesso) {
        return codigo;
    }
    no = CriaNo(no, sub);
    if (!no) {
        return CodigoRegistro::ParametroInvalido;
    }
    m_mudou = true;
    chave = Abre(std::move(no), kAcessoTotal);
    return CodigoRegistro::Sucesso;
}

CodigoRegistro RegistroPortatil::RegOpenKeyA(ChaveRegistro base, const QByteArray &sub,
                                             ChaveRegistro &chave)
{
    return RegistroPortatil::RegOpenKeyExA(base, sub, kAcessoTotal, chave);
}

CodigoRegistro RegistroPortatil::RegOpenKeyExA(ChaveRegistro base, const QByteArray &sub,
                                               std::uint32_t acesso, ChaveRegistro &chave)
{
    std::shared_ptr<NoRegistro> no;
    if (const auto codigo = NoDaChave(base, kNenhumDireito, no);
        codigo != CodigoRegistro::Sucesso) {
        return codigo;
    }
    no = AchaNo(no, sub);
    if (!no) {
        return CodigoRegistro::NaoAchado;
    }
    chave = Abre(std::move(no), acesso);
    return CodigoRegistro::Sucesso;
}

CodigoRegistro RegistroPortatil::RegCloseKey(ChaveRegistro chave)
{
    return EhRaiz(chave) || m_abertas.remove(chave) ? CodigoRegistro::Sucesso
                                                    : CodigoRegistro::ChaveInvalida;
}

CodigoRegistro RegistroPortatil::RegDeleteKeyA(ChaveRegistro base, const QByteArray &sub)
{
    std::shared_ptr<NoRegistro> no;
    if (const auto codigo = NoDaChave(base, kNenhumDireito, no);
        codigo != CodigoRegistro::Sucesso) {
        return codigo;
    }
    no = AchaNo(no, sub);
    if (!no) {
        return CodigoRegistro::NaoAchado;
    }
    if (no->pai == nullptr || no->chaves.Tamanho() > 0) {
        return CodigoRegistro::AcessoNegado;
    }
    no->pai->chaves.Tira(no->nome);
    no->apagado = true;
    m_mudou = true;
    return CodigoRegistro::Sucesso;
}

CodigoRegistro RegistroPortatil::RegDeleteValueA(ChaveRegistro chave, const QByteArray &nome)
{
    std::shared_ptr<NoRegistro> no;
    if (const auto codigo = NoDaChave(chave, kGravaValores, no);
        codigo != CodigoRegistro::Sucesso) {
        return codigo;
    }
    if (!no->valores.Tira(nome)) {
        return CodigoRegistro::NaoAchado;
    }
    m_mudou = true;
    return CodigoRegistro::Sucesso;
}

CodigoRegistro RegistroPortatil::RegEnumKeyExA(ChaveRegistro chave, std::uint32_t indice,
                                               std::uint32_t espaco, QByteArray &nome)
{
    nome.clear();
    std::shared_ptr<NoRegistro> no;
    if (const auto codigo = NoDaChave(chave, kListaChaves, no); codigo != CodigoRegistro::Sucesso) {
        return codigo;
    }
    const auto *filho = no->chaves.NoIndice(indice);
    if (filho == nullptr) {
        return CodigoRegistro::FimDaLista;
    }
    if ((*filho)->nome.size() >= espaco) {
        return CodigoRegistro::MaisDados;
    }
    nome = (*filho)->nome;
    return CodigoRegistro::Sucesso;
}

CodigoRegistro RegistroPortatil::RegEnumValueA(ChaveRegistro chave, std::uint32_t indice,
                                               const EspacoRegistro &espaco, ValorEnumerado &valor)
{
    valor = {};
    std::shared_ptr<NoRegistro> no;
    if (const auto codigo = NoDaChave(chave, kLeValores, no); codigo != CodigoRegistro::Sucesso) {
        return codigo;
    }
    const ValorGuardado *guardado = no->valores.NoIndice(indice);
    if (guardado == nullptr) {
        return CodigoRegistro::FimDaLista;
    }
    const auto codigo = Entrega(*guardado, espaco.dados, valor.conteudo);
    if (guardado->nome.size() >= espaco.nome) {
        return CodigoRegistro::MaisDados;
    }
    valor.nome = guardado->nome;
    return codigo;
}

CodigoRegistro RegistroPortatil::RegQueryValueExA(ChaveRegistro chave, const QByteArray &nome,
                                                  std::optional<std::uint32_t> espaco,
                                                  DadosRegistro &conteudo)
{
    conteudo = {};
    std::shared_ptr<NoRegistro> no;
    if (const auto codigo = NoDaChave(chave, kLeValores, no); codigo != CodigoRegistro::Sucesso) {
        return codigo;
    }
    const ValorGuardado *guardado = no->valores.Acha(nome);
    return guardado == nullptr ? CodigoRegistro::NaoAchado : Entrega(*guardado, espaco, conteudo);
}

CodigoRegistro RegistroPortatil::RegSetValueExA(ChaveRegistro chave, const QByteArray &nome,
                                                std::uint32_t tipo, const QByteArray &dados)
{
    std::shared_ptr<NoRegistro> no;
    if (const auto codigo = NoDaChave(chave, kGravaValores, no);
        codigo != CodigoRegistro::Sucesso) {
        return codigo;
    }
    if (!GuardaValor(*no, nome, tipo, dados)) {
        return CodigoRegistro::ParametroInvalido;
    }
    m_mudou = true;
    return CodigoRegistro::Sucesso;
}
