#pragma once
// The print preview: the pages of a report as they will print, painted on
// demand by the print engine (only the pages in view, a few kept), with the
// page count, zoom, printing through the system's dialog and saving a PDF.

#include "document/InterfaceUsuario.h"
#include "impressao/MotorImpressao.h"

#include <QAbstractScrollArea>
#include <QCache>
#include <QDialog>
#include <memory>

class QComboBox;
class QLabel;
class QPushButton;

namespace lumeta {

// The pages one under the other; paints only those that show.
class VistaPaginas : public QAbstractScrollArea {
    Q_OBJECT
public:
    explicit VistaPaginas(MotorImpressao &motor, QWidget *pai = nullptr);
    // 1.0 = 96 pixels an inch.
    void DefinirZoom(double zoom);
    double Zoom() const { return m_zoom; }
    // The zoom at which a page fills the view's width.
    double ZoomLargura() const;
    int PaginaAtual() const;
    void IrParaPagina(int pagina);
    // Pages painted since the view opened: the proof that nobody's pages
    // are drawn but those in view.
    int PaginasPintadas() const { return m_pintadas; }

signals:
    void PaginaMudou(int pagina);

protected:
    void paintEvent(QPaintEvent *) override;
    void resizeEvent(QResizeEvent *) override;
    void scrollContentsBy(int dx, int dy) override;
    void wheelEvent(QWheelEvent *e) override;

private:
    QSize tamanhoPagina() const;
    int passo() const { return tamanhoPagina().height() + Intervalo; }
    void atualizarBarras();
    const QImage &imagem(int pagina);

    static constexpr int Intervalo = 16;
    MotorImpressao &m_motor;
    double m_zoom = 1.0;
    QCache<int, QImage> m_imagens{8};
    int m_pintadas = 0;
    int m_ultimaAvisada = 0;
};

class JanelaPrevia : public QDialog {
    Q_OBJECT
public:
    JanelaPrevia(std::unique_ptr<MotorImpressao> motor, const QString &nome, InterfaceUsuario *ui,
                 QWidget *pai = nullptr);
    ~JanelaPrevia() override;

    VistaPaginas *Vista() const { return m_vista; }
    MotorImpressao &Motor() { return *m_motor; }
    // The system's print dialog, the report's printer chosen when installed.
    void Imprimir();
    // Asks a name and writes every page into it.
    void SalvarPDF();

private:
    void mostrarPagina(int pagina);

    std::unique_ptr<MotorImpressao> m_motor;
    QString m_nome;
    InterfaceUsuario *m_ui;
    VistaPaginas *m_vista = nullptr;
    QLabel *m_pagina = nullptr;
    QComboBox *m_zoom = nullptr;
};

// Opens the preview of command text (the result pane's); with "IR" in it the
// pages go straight to the print dialog.
void AbrirPreviaTexto(QWidget *pai, InterfaceUsuario *ui, const QString &texto, const QString &nome);
// Asks for a command file a host program wrote and opens its preview; a file
// the engine refuses is told, and nothing opens.
void AbrirArquivoComandos(QWidget *pai, InterfaceUsuario *ui);

}  // namespace lumeta
