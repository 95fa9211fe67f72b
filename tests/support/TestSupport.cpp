#include "support/TestSupport.h"

#include <QFile>

namespace lumeta::teste {

Item NovoItem(uint8_t tipo, const QString &texto, int esquerda, int largura)
{
    Item it;
    it.Tipo = tipo;
    it.Texto = texto;
    it.Esquerda = esquerda;
    it.Largura = largura;
    return it;
}

Bytes &Bytes::i16(int v)
{
    b.append(char(v & 0xFF)).append(char((v >> 8) & 0xFF));
    return *this;
}
Bytes &Bytes::i32(int v)
{
    for (int i = 0; i < 4; ++i)
        b.append(char((unsigned(v) >> (8 * i)) & 0xFF));
    return *this;
}
Bytes &Bytes::u8(int v)
{
    b.append(char(v));
    return *this;
}
Bytes &Bytes::str(const QByteArray &s)
{
    i16(int(s.size()));
    b.append(s);
    return *this;
}
Bytes &Bytes::raw(const QByteArray &s)
{
    b.append(s);
    return *this;
}
Bytes &Bytes::cab(const char *revisao)
{
    QByteArray c = QByteArray("LumetaEdit 1.0(") + revisao + ")";
    c.append(QByteArray(32 - c.size(), ' '));
    b.append(c);
    return *this;
}

QString CaminhoDados(const QString &nome)
{
    return QStringLiteral(LUMETA_TEST_DATA "/") + nome;
}

QByteArray LerArquivo(const QString &caminho)
{
    QFile f(caminho);
    if (!f.open(QIODevice::ReadOnly))
        return {};
    return f.readAll();
}

void GravarArquivoTeste(const QString &caminho, const QByteArray &dados)
{
    QFile f(caminho);
    if (f.open(QIODevice::WriteOnly))
        f.write(dados);
}

}  // namespace lumeta::teste
