#include "tools/art/icon.h"

#include "tools/art/palette.h"
#include "tools/art/shapes.h"
#include <array>
#include <QBuffer>
#include <QDataStream>
#include <QHash>
#include <QImage>

namespace {

/// One filled outline of the icon, in a square of side 16; its colour runs from `cima` to `baixo`.
struct Camada
{
    QPainterPath caminho;
    QRgb cima, baixo;
};

constexpr double kGrade = 16;

std::array<Camada, 4> Camadas()
{
    const auto centra = [](const QPainterPath &caminho) { return caminho.translated(2, 2); };
    return {{{CaminhoRedondo({0, 0, 16, 16}, 3.5), qRgb(64, 176, 236), qRgb(0, 62, 122)},
             {CaminhoRedondo({0.5, 0.5, 15, 15}, 3), qRgb(0, 136, 206), qRgb(0, 88, 160)},
             {centra(AnelDaMarca()), kBranco, kBranco},
             {centra(CaudaDaMarca()), qRgb(255, 226, 64), kCaixa}}};
}

QImage ImagemIcone(int lado)
{
    QImage imagem(lado, lado, QImage::Format_ARGB32_Premultiplied);
    imagem.fill(Qt::transparent);
    QPainter p(&imagem);
    p.setRenderHint(QPainter::Antialiasing);
    PintaIcone(p, lado);
    p.end();
    return imagem.convertToFormat(QImage::Format_ARGB32);
}

QByteArray CaminhoVetorial(const QPainterPath &caminho)
{
    QByteArray texto;
    const auto ponto = [&texto, &caminho](int k) {
        texto += QByteArray::number(caminho.elementAt(k).x, 'g', 5) + ' ' +
                 QByteArray::number(caminho.elementAt(k).y, 'g', 5) + ' ';
    };
    for (int k = 0; k < caminho.elementCount(); ++k) {
        const auto tipo = caminho.elementAt(k).type;
        if (tipo == QPainterPath::CurveToDataElement) {
            ponto(k);
            continue;
        }
        texto += tipo == QPainterPath::MoveToElement   ? 'M'
                 : tipo == QPainterPath::LineToElement ? 'L'
                                                       : 'C';
        ponto(k);
    }
    return texto + 'Z';
}

/// The colours of an image of 8 bits a pixel, and the index of each pixel.
struct Paleta
{
    QList<QRgb> cores;
    QList<quint8> indices;
};

/// Keeps as many bits of each colour as 256 entries allow.
Paleta FazPaleta(const QImage &imagem)
{
    for (int bits = 8;; --bits) {
        Paleta paleta;
        QHash<QRgb, quint8> achadas;
        const auto corta = [bits](int canal) {
            return ((canal >> (8 - bits)) * 255) / ((1 << bits) - 1);
        };
        bool cabe = true;
        for (int k = 0; cabe && k < imagem.width() * imagem.height(); ++k) {
            const QRgb cor = imagem.pixel(k % imagem.width(), k / imagem.width());
            const QRgb chave = qAlpha(cor) < 128
                                   ? qRgb(0, 0, 0)
                                   : qRgb(corta(qRed(cor)), corta(qGreen(cor)), corta(qBlue(cor)));
            if (!achadas.contains(chave)) {
                cabe = paleta.cores.size() < 256;
                achadas.insert(chave, static_cast<quint8>(paleta.cores.size()));
                paleta.cores.append(chave);
            }
            paleta.indices.append(achadas.value(chave));
        }
        if (cabe) {
            return paleta;
        }
    }
}

/// Bytes of a row of `pixels` with `bits` each, padded to four bytes.
int BytesDaLinha(int pixels, int bits)
{
    return (pixels * bits + 31) / 32 * 4;
}

/// The picture as an icon file holds it: bitmap header, palette, pixels from the last row up, mask.
QByteArray Bitmap(int lado, int bits)
{
    const QImage imagem = ImagemIcone(lado);
    QByteArray bytes;
    QDataStream saida(&bytes, QIODevice::WriteOnly);
    saida.setByteOrder(QDataStream::LittleEndian);
    const int tamanho = (BytesDaLinha(lado, bits) + BytesDaLinha(lado, 1)) * lado;
    saida << quint32{40} << qint32{lado} << qint32{lado * 2} << quint16{1}
          << static_cast<quint16>(bits) << quint32{0} << static_cast<quint32>(tamanho) << qint32{0}
          << qint32{0} << quint32{bits == 8 ? 256U : 0U} << quint32{0};

    const Paleta paleta = bits == 8 ? FazPaleta(imagem) : Paleta{};
    for (int k = 0; bits == 8 && k < 256; ++k) {
        saida << static_cast<quint32>(paleta.cores.value(k, qRgb(0, 0, 0)) & 0xFFFFFFU);
    }
    for (int y = lado - 1; y >= 0; --y) {
        for (int x = 0; x < lado; ++x) {
            if (bits == 8) {
                saida << paleta.indices[y * lado + x];
            } else {
                saida << static_cast<quint32>(imagem.pixel(x, y));
            }
        }
    }
    for (int y = lado - 1; y >= 0; --y) {
        QByteArray linha(BytesDaLinha(lado, 1), '\0');
        for (int x = 0; x < lado; ++x) {
            if (qAlpha(imagem.pixel(x, y)) < 128) {
                linha[x / 8] = static_cast<char>(linha[x / 8] | (0x80 >> (x % 8)));
            }
        }
        saida.writeRawData(linha.constData(), static_cast<int>(linha.size()));
    }
    return bytes;
}

} // namespace

void PintaIcone(QPainter &p, double lado)
{
    p.scale(lado / kGrade, lado / kGrade);
    for (const Camada &camada : Camadas()) {
        QLinearGradient cor(0, camada.caminho.boundingRect().top(), 0,
                            camada.caminho.boundingRect().bottom());
        cor.setColorAt(0, QColor(camada.cima));
        cor.setColorAt(1, QColor(camada.baixo));
        p.fillPath(camada.caminho, cor);
    }
}

QByteArray IconeVetorial()
{
    QByteArray cores;
    QByteArray formas;
    int n = 0;
    for (const Camada &camada : Camadas()) {
        const QByteArray nome = "c" + QByteArray::number(++n);
        cores += "<linearGradient id=\"" + nome +
                 "\" x1=\"0\" y1=\"0\" x2=\"0\" y2=\"1\"><stop stop-color=\"" +
                 QColor(camada.cima).name().toLatin1() + "\"/><stop offset=\"1\" stop-color=\"" +
                 QColor(camada.baixo).name().toLatin1() + "\"/></linearGradient>\n";
        formas +=
            "<path fill=\"url(#" + nome + ")\" d=\"" + CaminhoVetorial(camada.caminho) + "\"/>\n";
    }
    return "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"256\" height=\"256\" viewBox=\"0 0 "
           "16 16\">\n"
           "<title>Quadrelo</title>\n<defs>\n" +
           cores + "</defs>\n" + formas + "</svg>\n";
}

QByteArray ArquivoIcone()
{
    constexpr std::array kLados = {16, 32, 48};
    constexpr std::array kBits = {8, 32};
    constexpr quint32 kInicio = 6 + 16 * kLados.size() * kBits.size();
    QByteArray indice;
    QByteArray bitmaps;
    QDataStream saida(&indice, QIODevice::WriteOnly);
    saida.setByteOrder(QDataStream::LittleEndian);
    saida << quint16{0} << quint16{1} << static_cast<quint16>(kLados.size() * kBits.size());
    for (const int lado : kLados) {
        for (const int bits : kBits) {
            const QByteArray bitmap = Bitmap(lado, bits);
            saida << static_cast<quint8>(lado) << static_cast<quint8>(lado) << quint8{0}
                  << quint8{0} << quint16{1} << static_cast<quint16>(bits)
                  << static_cast<quint32>(bitmap.size())
                  << static_cast<quint32>(kInicio + static_cast<quint32>(bitmaps.size()));
            bitmaps += bitmap;
        }
    }
    return indice + bitmaps;
}
