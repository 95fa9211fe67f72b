#include "output/Comentario.h"

#include "output/CopiarComo.h"

namespace lumeta {

namespace {
const QString CRLF = QStringLiteral("\r\n");
}

PartesComentario DividirComentario(const QString &comentario)
{
    const qsizetype i = comentario.indexOf(SeparadorComentario);
    if (i < 0)
        return {comentario, QString()};
    return {comentario.left(i), comentario.mid(i + 1)};
}

QString JuntarComentario(const QString &antes, const QString &depois)
{
    if (depois.isEmpty())
        return antes;
    return antes + SeparadorComentario + depois;
}

QString ComentarioParaCaixa(const QString &texto)
{
    return QString(texto).replace(CRLF, QStringLiteral("\n"));
}

QString CaixaParaComentario(const QString &texto)
{
    QString r = QString(texto).replace(CRLF, QStringLiteral("\n"));
    return r.replace(u'\n', CRLF);
}

QString LinhaColuna(const QString &texto, int posicao)
{
    const QStringView antes = QStringView(texto).left(std::clamp<qsizetype>(posicao, 0, texto.size()));
    const qsizetype linha = antes.count(u'\n') + 1;
    const qsizetype coluna = antes.size() - (antes.lastIndexOf(u'\n') + 1) + 1;
    return QStringLiteral("(%1, %2)").arg(linha).arg(coluna);
}

QString CodigoFerramenta(const LinguagemDef &ling, FerramentaComentario ferramenta)
{
    QString codigo = ling.ComandosSimples;
    codigo.replace(QStringLiteral("§c"), ferramenta == FerramentaComentario::QuebraPagina
                                             ? QStringLiteral("QP")
                                             : QStringLiteral("01 Digite aqui o Valor!"));
    if (!codigo.endsWith(CRLF))
        codigo += CRLF;
    if (ling.EhCobol)
        codigo = QuebrarLinhasCobol(codigo, ling.CobolString);
    return codigo;
}

}  // namespace lumeta
