#include "editing/ComandosOpcoes.h"

#include "editing/Selecao.h"
#include "editing/SessaoEdicao.h"
#include "output/TextoComandos.h"
#include "output/Visualizacao.h"

namespace lumeta {

namespace {

// Position of the several-lines flag in an item's text flags.
constexpr int FlagVariasLinhas = 5;

}  // namespace

MargemLida LerMargem(const QString &margem)
{
    MargemLida r;
    if (margem.startsWith(u'"')) {
        r.numero = true;
        r.milimetros = NumeroInicial(QString(margem).remove(u'"'));
    } else {
        r.comando = margem;
    }
    return r;
}

QString GravarMargem(double milimetros, const QString &comando)
{
    if (!comando.isEmpty())
        return comando;
    return QLatin1Char('"') + QString::number(milimetros, 'g', 15) + QLatin1Char('"');
}

void DefinirMargens(SessaoEdicao &s, const QString &superior, const QString &esquerda, const QString &inferior)
{
    s.Documento.MargemSuperior = superior;
    s.Documento.MargemEsquerda = esquerda;
    s.Documento.MargemInferior = inferior;
    s.OpcaoAlterada();
}

QStringList ListaImpressoras(const QStringList &sistema)
{
    return QStringList{ImpressoraPadrao, ImpressoraUsuario} + sistema;
}

int EntradaImpressora(const QStringList &lista, const QString &digitado)
{
    const QString procurado = digitado.trimmed().toUpper();
    for (int k = 0; k < lista.size(); ++k)
        if (lista[k].toUpper() == procurado)
            return k;
    return -1;
}

int EntradaDoValor(const QStringList &lista, const QString &valor)
{
    if (valor.isEmpty())
        return 0;
    if (valor == ValorImpressoraUsuario)
        return 1;
    return EntradaImpressora(lista, valor);
}

QString ValorImpressora(int entrada, const QString &texto)
{
    if (entrada == 0)
        return QString();
    if (entrada == 1)
        return ValorImpressoraUsuario;
    return texto;
}

void DefinirNomeImpressora(SessaoEdicao &s, const QString &nome)
{
    s.Documento.NomeImpressora = nome;
    s.OpcaoAlterada();
}

int16_t LimitarQualidadeJPG(qint64 valor)
{
    return int16_t(std::clamp<qint64>(valor, 1, 100));
}

void DefinirQualidadeJPG(SessaoEdicao &s, int16_t qualidade)
{
    s.Documento.QualidadeJPG = qualidade;
    s.QualidadeJPGSessao = qualidade;
    s.OpcaoAlterada();
}

void DefinirTextoEmail(SessaoEdicao &s, const QString &caixa)
{
    s.Documento.TextoEmail = TextoEmailDaCaixa(caixa);
    s.ConcluirEdicao();
}

void DefinirTextoEstilo(SessaoEdicao &s, const QString &texto)
{
    bool mudou = false;
    const bool variasLinhas = texto.contains(QStringLiteral("{e}"), Qt::CaseInsensitive);
    for (const AlvoItens &a : ItensAlvo(s)) {
        Item &item = s.Documento.banda(a.banda).Itens[a.item - 1];
        if (variasLinhas && item.Atributos[FlagVariasLinhas] != u'1') {
            item.Atributos[FlagVariasLinhas] = u'1';
            mudou = true;
        }
        if (texto != item.Texto) {
            item.Texto = texto;
            mudou = true;
        }
    }
    if (mudou)
        s.ConcluirEdicao();
}

bool mnuEditarVisualizar(SessaoEdicao &s)
{
    return Visualizar(s.TextoResultado, s.ArquivoVisualizacao, s.Documento.EnviarEmail, s.Ui);
}

}  // namespace lumeta
