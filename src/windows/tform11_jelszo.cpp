#include "windows/tform11_jelszo.h"

#include <QCoreApplication>
#include <QSignalBlocker>
#include <QVBoxLayout>

#include "chart/allapot.h"
#include "commands/jelszo.h"
#include "windows/ablakelhelyezes.h"

TForm11::TForm11(Allapot& allapot, FoAblak&, QWidget* fo)
    : QDialog(fo, Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowStaysOnTopHint),
      programVege([] { QCoreApplication::exit(0); }),
      allapot_(allapot),
      fo_(fo),
      tar_(TJelszoTar::alapFajl()),
      edit1_(new QLineEdit(this)) {
    setObjectName("TForm11");
    setWindowTitle("Kérem a jelszót!");
    edit1_->setObjectName("Edit1");
    edit1_->setEchoMode(QLineEdit::Password);
    edit1_->setMaxLength(jelszoHossz);
    edit1_->setMinimumWidth(200);
    (new QVBoxLayout(this))->addWidget(edit1_);
    connect(edit1_, &QLineEdit::textChanged, this, &TForm11::Edit1Change);

    using Allas = TJelszoTar::Allas;
    allapot_.JelszoRendben = tar_.allas() == Allas::nincsTar || tar_.allas() == Allas::nincsJelszo;
}

bool TForm11::ujJelszo(const QString& jelszo) {
    return tar_.ment(jelszo.left(jelszoHossz));
}

bool TForm11::JelszoKeres() {
    if (allapot_.JelszoRendben) return true;
    {
        const QSignalBlocker blokk(edit1_);
        edit1_->clear();
    }
    adjustSize();
    kozepre(*this, *fo_);
    exec();
    if (!allapot_.JelszoRendben) programVege();
    return allapot_.JelszoRendben;
}

void TForm11::Edit1Change() {
    if (JelszoValtozas(allapot_, tar_.egyezik(edit1_->text())) != JelszoValasz::tovabb) accept();
}
