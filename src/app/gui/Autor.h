#pragma once
// The about box: the program's title and version, and the maker's e-mail and
// web page as links.

#include <QDialog>

namespace lumeta {

class Autor : public QDialog {
    Q_OBJECT
public:
    explicit Autor(QWidget *pai = nullptr);
    // "2.7.1": major, minor and revision of this build.
    static QString Versao();
};

}  // namespace lumeta
