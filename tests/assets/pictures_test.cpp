#include "assets/pictures.h"
#include "tools/art/catalogue.h"
#include "tools/art/icon.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <QFile>
#include <QImage>
#include <QRect>
#include <QtEndian>

namespace {

constexpr QRgb kChave = qRgb(255, 0, 0);
constexpr QRgb kCorpo = qRgb(0, 130, 198);
constexpr QRgb kAmarelo = qRgb(222, 199, 24);
constexpr QRgb kBrancoPuro = qRgb(255, 255, 255);

constexpr std::array<QStringView, 4> kRecortadas = {u"Form1", u"FrmCarregar", u"FrmSalvar2",
                                                    u"FrmHanking"};

QImage Le(QStringView nome, int escala = 1)
{
    QString caminho = CaminhoFigura(nome);
    if (escala > 1) {
        caminho.replace(QStringLiteral(".png"), QStringLiteral("@%1x.png").arg(escala));
    }
    return QImage(caminho);
}

std::string Texto(QStringView nome, int escala = 1)
{
    return nome.toString().toStdString() + " at scale " + std::to_string(escala);
}

/// Key pixels at the left and at the right end of row `y`.
std::pair<int, int> ChaveEsperada(int y, int altura)
{
    switch (y < 4 ? y : y - altura) {
    case 0:
        return {4, 3};
    case 1:
        return {2, 2};
    case 2:
    case 3:
        return {1, 1};
    case -5:
        return {1, 0};
    case -4:
        return {1, 1};
    case -3:
        return {2, 1};
    case -2:
        return {4, 2};
    case -1:
        return {5, 4};
    default:
        return {0, 0};
    }
}

double Luminancia(QRgb cor)
{
    const auto linear = [](int canal) {
        const double c = canal / 255.0;
        return c <= 0.04045 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(qRed(cor)) + 0.7152 * linear(qGreen(cor)) + 0.0722 * linear(qBlue(cor));
}

double Contraste(QRgb a, QRgb b)
{
    const double la = Luminancia(a) + 0.05;
    const double lb = Luminancia(b) + 0.05;
    return la > lb ? la / lb : lb / la;
}

bool Lisa(const QImage &imagem, const QRect &area, QRgb cor)
{
    for (int y = area.top(); y <= area.bottom(); ++y) {
        for (int x = area.left(); x <= area.right(); ++x) {
            if (imagem.pixel(x, y) != cor) {
                return false;
            }
        }
    }
    return true;
}

/// Pixels in `area` whose colour `serve`.
template <typename Teste>
int Conta(const QImage &imagem, const QRect &area, Teste serve)
{
    int n = 0;
    for (int y = area.top(); y <= area.bottom(); ++y) {
        for (int x = area.left(); x <= area.right(); ++x) {
            n += serve(imagem.pixel(x, y)) ? 1 : 0;
        }
    }
    return n;
}

int Brancos(const QImage &imagem, const QRect &area)
{
    return Conta(imagem, area, [](QRgb cor) { return cor == kBrancoPuro; });
}

/// Pixels of a menu button's word, of its light upper edge and of its dark foot.
int DeBotao(const QImage &imagem, const QRect &area)
{
    return Conta(imagem, area,
                 [](QRgb cor) { return Luminancia(cor) > 0.33 || Luminancia(cor) < 0.03; });
}

/// Largest difference of a channel between two pictures; 255 where their sizes differ.
int MaiorDiferenca(const QImage &a, const QImage &b)
{
    if (a.size() != b.size()) {
        return 255;
    }
    const QImage x = a.convertToFormat(QImage::Format_ARGB32_Premultiplied);
    const QImage y = b.convertToFormat(QImage::Format_ARGB32_Premultiplied);
    int maior = 0;
    for (qsizetype k = 0; k < x.sizeInBytes(); ++k) {
        maior = std::max(maior, std::abs(int{x.constBits()[k]} - int{y.constBits()[k]}));
    }
    return maior;
}

} // namespace

TEST(Pictures, HaveTheSizesOfTheirControlsAndTheRightDepth)
{
    struct Caso
    {
        QStringView nome;
        QSize tamanho;
        bool vinteQuatroBits;
    };
    const std::array casos = {
        Caso{u"FrmSplash", {361, 90}, true},    Caso{u"Form1", {652, 499}, true},
        Caso{u"FrmCarregar", {251, 373}, true}, Caso{u"FrmSalvar2", {283, 99}, true},
        Caso{u"FrmHanking", {385, 206}, true},  Caso{u"Image6", {117, 32}, true},
        Caso{u"Image7", {196, 21}, false},      Caso{u"ImgR", {20, 19}, false},
        Caso{u"Image1", {20, 20}, false},       Caso{u"ImgHintDire", {14, 28}, false},
        Caso{u"ImgHintDire2", {12, 13}, false}, Caso{u"Jogo", {70, 118}, true},
        Caso{u"Pergunta", {32, 32}, false},     Caso{u"Mao", {32, 32}, false}};
    for (const Caso &caso : casos) {
        for (int escala = 1; escala <= 3; ++escala) {
            const QImage imagem = Le(caso.nome, escala);
            EXPECT_EQ(imagem.size(), caso.tamanho * escala) << Texto(caso.nome, escala);
            EXPECT_EQ(imagem.hasAlphaChannel(), !caso.vinteQuatroBits) << Texto(caso.nome, escala);
            EXPECT_EQ(imagem.depth(), 32) << Texto(caso.nome, escala);
        }
    }
    // The reader widens 24 bits to 32, so the files' own headers are asked too: 8 bits, no alpha.
    for (const QStringView nome : kRecortadas) {
        QFile arquivo(CaminhoFigura(nome));
        ASSERT_TRUE(arquivo.open(QIODevice::ReadOnly));
        EXPECT_EQ(arquivo.read(26).sliced(24), QByteArray("\x08\x02", 2)) << Texto(nome);
    }
}

TEST(Pictures, CarryTheKeyColourInTheirCornersAndNowhereElse)
{
    for (const QStringView nome : kRecortadas) {
        const QImage imagem = Le(nome);
        int erros = 0;
        int chaves = 0;
        for (int y = 0; y < imagem.height(); ++y) {
            const auto [esquerda, direita] = ChaveEsperada(y, imagem.height());
            for (int x = 0; x < imagem.width(); ++x) {
                const bool espera = x < esquerda || x >= imagem.width() - direita;
                const bool achada = imagem.pixel(x, y) == kChave;
                erros += espera != achada ? 1 : 0;
                chaves += achada ? 1 : 0;
            }
        }
        EXPECT_EQ(erros, 0) << Texto(nome);
        EXPECT_EQ(chaves, 36) << Texto(nome);
    }
}

TEST(Pictures, KeepTheKeyColourOfLargeScalesInsideThePatternAndUnblended)
{
    for (const QStringView nome : kRecortadas) {
        for (int escala = 1; escala <= 3; ++escala) {
            const QImage imagem = Le(nome, escala);
            const QRgb borda = imagem.pixel(imagem.width() / 2, 0);
            int chaves = 0;
            int foraDoPadrao = 0;
            int vizinhasMisturadas = 0;
            for (int y = 0; y < imagem.height(); ++y) {
                const auto [esquerda, direita] =
                    ChaveEsperada(y / escala, imagem.height() / escala);
                for (int x = 0; x < imagem.width(); ++x) {
                    if (imagem.pixel(x, y) != kChave) {
                        continue;
                    }
                    ++chaves;
                    const bool dentro =
                        x < esquerda * escala || x >= imagem.width() - direita * escala;
                    foraDoPadrao += dentro ? 0 : 1;
                    for (const QPoint passo :
                         {QPoint(1, 0), QPoint(-1, 0), QPoint(0, 1), QPoint(0, -1)}) {
                        const QPoint vizinha = QPoint(x, y) + passo;
                        const QRgb cor = imagem.valid(vizinha) ? imagem.pixel(vizinha) : kChave;
                        vizinhasMisturadas += cor == kChave || cor == borda ? 0 : 1;
                    }
                }
            }
            EXPECT_GT(chaves, 12 * escala * escala) << Texto(nome, escala);
            EXPECT_EQ(foraDoPadrao, 0) << Texto(nome, escala);
            EXPECT_EQ(vizinhasMisturadas, 0) << Texto(nome, escala);
        }
    }
}

TEST(Pictures, KeepTheirGroundPlainWhereControlsWrite)
{
    struct Caso
    {
        QStringView nome;
        QRect area;
        QRgb cor;
    };
    const std::array casos = {
        Caso{u"FrmSplash", {270, 16, 80, 16}, qRgb(75, 119, 176)},
        Caso{u"Form1", {5, 32, 490, 415}, kCorpo},
        Caso{u"Form1", {74, 475, 531, 14}, kCorpo},
        Caso{u"FrmCarregar", {14, 41, 223, 24}, qRgb(255, 255, 223)},
        Caso{u"FrmSalvar2", {20, 36, 256, 58}, qRgb(47, 182, 255)},
        Caso{u"FrmHanking", {15, 46, 355, 18}, qRgb(0, 0, 0)},
    };
    for (const Caso &caso : casos) {
        for (int escala = 1; escala <= 3; ++escala) {
            const QRect area(caso.area.topLeft() * escala, caso.area.size() * escala);
            EXPECT_TRUE(Lisa(Le(caso.nome, escala), area, caso.cor)) << Texto(caso.nome, escala);
        }
    }
    const QImage form = Le(u"Form1");
    EXPECT_TRUE(Lisa(form, {553, 343, 59, 15}, form.pixel(553, 343))) << "help label";
}

TEST(Pictures, HaveABoxUnderEveryItemButtonAndTheClock)
{
    const QImage form = Le(u"Form1");
    const int meio = 458;
    for (int n = 0; n < 26; ++n) {
        const int x = 12 + 21 * n;
        EXPECT_TRUE(Lisa(form, {x, meio, 18, 1}, kAmarelo)) << n;
        EXPECT_TRUE(form.pixel(x - 1, meio) == kCorpo && form.pixel(x + 18, meio) == kCorpo) << n;
    }
    EXPECT_TRUE(Lisa(form, {563, meio, 76, 1}, kAmarelo));
    EXPECT_TRUE(form.pixel(562, meio) == kCorpo && form.pixel(639, meio) == kCorpo);
}

TEST(Pictures, PaintTheirButtonsUnderTheClickZones)
{
    const QImage form = Le(u"Form1");
    const std::array zonas = {QRect(524, 46, 113, 26),  QRect(524, 86, 113, 26),
                              QRect(523, 126, 113, 26), QRect(524, 167, 113, 27),
                              QRect(525, 207, 113, 27), QRect(525, 248, 113, 27)};
    int soma = 0;
    for (const QRect &zona : zonas) {
        EXPECT_GT(DeBotao(form, zona), 300);
        soma += DeBotao(form, zona);
    }
    EXPECT_EQ(DeBotao(form, {500, 32, 148, 300}), soma);

    const int informacao = Brancos(form, {614, 2, 16, 16});
    const int cruz = Brancos(form, {629, 2, 19, 18});
    EXPECT_GT(informacao, 5);
    EXPECT_GT(cruz, 5);
    EXPECT_EQ(Brancos(form, {500, 1, 148, 29}), informacao + cruz);

    struct Caso
    {
        QStringView nome;
        QRect zona;
    };
    // Where two forms share a picture, the zone is what both have in common.
    const std::array casos = {Caso{u"FrmCarregar", {229, 3, 16, 19}},
                              Caso{u"FrmSalvar2", {258, 4, 22, 19}},
                              Caso{u"FrmHanking", {361, 0, 20, 21}}};
    for (const Caso &caso : casos) {
        const QImage imagem = Le(caso.nome);
        EXPECT_GT(Brancos(imagem, caso.zona), 5) << Texto(caso.nome);
        EXPECT_EQ(Brancos(imagem, {0, 0, imagem.width(), 30}), Brancos(imagem, caso.zona))
            << Texto(caso.nome);
    }
}

TEST(Pictures, GiveWhiteTextAContrastOfFourAndAHalf)
{
    struct Caso
    {
        QStringView nome;
        QPoint ponto;
    };
    // The lightest ground that a white word stands on, in each picture.
    const std::array casos = {Caso{u"FrmSplash", {180, 20}}, Caso{u"Form1", {300, 8}},
                              Caso{u"Form1", {530, 53}},     Caso{u"Form1", {600, 350}},
                              Caso{u"Image6", {8, 6}},       Caso{u"Image1", {10, 3}},
                              Caso{u"ImgR", {5, 5}},         Caso{u"FrmHanking", {90, 8}}};
    for (const Caso &caso : casos) {
        EXPECT_GE(Contraste(Le(caso.nome).pixel(caso.ponto), kBrancoPuro), 4.5) << Texto(caso.nome);
    }
}

TEST(Pictures, LetDesistirCoverTheFirstMenuButtonWithoutATrace)
{
    for (int escala = 1; escala <= 3; ++escala) {
        QImage diferenca =
            Le(u"Form1", escala).copy(525 * escala, 47 * escala, 117 * escala, 32 * escala);
        const QImage botao = Le(u"Image6", escala);
        // Below and beside the button the covering picture is the ground itself.
        const QRect abaixo(0, 27 * escala, 117 * escala, 5 * escala);
        EXPECT_EQ(MaiorDiferenca(diferenca.copy(abaixo), botao.copy(abaixo)), 0) << escala;
        const QRect aoLado(112 * escala, 0, 5 * escala, 32 * escala);
        EXPECT_EQ(MaiorDiferenca(diferenca.copy(aoLado), botao.copy(aoLado)), 0) << escala;
    }
}

TEST(Pictures, DrawTheHandInBlackAndWhiteWithItsHotSpotAtTheFingertip)
{
    const QImage mao = Le(u"Mao");
    for (int k = 0; k < 32 * 32; ++k) {
        const QRgb cor = mao.pixel(k % 32, k / 32);
        EXPECT_TRUE(qAlpha(cor) == 0 || cor == qRgb(0, 0, 0) || cor == kBrancoPuro) << k;
    }
    EXPECT_NE(qAlpha(mao.pixel(kPontoMao)), 0);
    EXPECT_EQ(qAlpha(mao.pixel(kPontoMao - QPoint(0, 1))), 0);
}

TEST(Pictures, ComeOutTheSameWhenDrawnAnew)
{
    for (const Figura &figura : Figuras()) {
        for (int escala = 1; escala <= figura.escalas; ++escala) {
            // Machines may round a blended pixel differently by a step or two.
            EXPECT_LE(MaiorDiferenca(DesenhaFigura(figura, escala), Le(figura.nome, escala)), 2)
                << Texto(figura.nome, escala);
        }
    }
    QFile vetor(QStringLiteral(QUADRELO_ASSETS "/figuras/quadrelo.svg"));
    ASSERT_TRUE(vetor.open(QIODevice::ReadOnly));
    EXPECT_EQ(vetor.readAll(), IconeVetorial());
}

TEST(IconFile, HoldsThreeSizesInTwoDepths)
{
    QFile arquivo(QStringLiteral(QUADRELO_ASSETS "/figuras/quadrelo.ico"));
    ASSERT_TRUE(arquivo.open(QIODevice::ReadOnly));
    const QByteArray bytes = arquivo.readAll();
    EXPECT_EQ(bytes.size(), ArquivoIcone().size());
    ASSERT_EQ(bytes.first(6), QByteArray("\0\0\1\0\6\0", 6));
    const auto numero = [&bytes](qsizetype k) {
        return qFromLittleEndian<quint32>(bytes.constData() + k);
    };
    qsizetype fim = 6 + 16 * 6;
    for (int n = 0; n < 6; ++n) {
        const qsizetype entrada = 6 + 16 * n;
        const int lado = std::array{16, 32, 48}[static_cast<size_t>(n / 2)];
        const int bits = n % 2 == 0 ? 8 : 32;
        EXPECT_EQ(bytes[entrada], lado);
        EXPECT_EQ(bytes[entrada + 6], bits);
        EXPECT_EQ(numero(entrada + 12), fim) << "pictures lie one behind the other";
        // Palette, pixels and mask fill exactly what the entry says.
        const int mascara = (lado + 31) / 32 * 4 * lado;
        EXPECT_EQ(numero(entrada + 8),
                  40 + (bits == 8 ? 1024 : 0) + lado * lado * bits / 8 + mascara);
        // A pixel in the middle of the tile is blue in both depths: the ring's inside.
        const qsizetype pixels = fim + 40 + (bits == 8 ? 1024 : 0);
        const qsizetype meio = (lado - 1 - lado * 7 / 16) * lado + lado * 7 / 16;
        const quint32 cor =
            bits == 32 ? numero(pixels + meio * 4)
                       : numero(fim + 40 +
                                qsizetype{4} * static_cast<unsigned char>(bytes[pixels + meio]));
        EXPECT_GT(qBlue(cor), 130) << n;
        EXPECT_LT(qRed(cor), 60) << n;
        fim += numero(entrada + 8);
    }
    EXPECT_EQ(fim, bytes.size());
}
