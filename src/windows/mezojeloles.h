#pragma once

#include <QLineEdit>
#include <QObject>
#include <QString>
#include <QWidget>

/// Marks a field whose content is admitted but worth a second look: its text takes a colour that can be read
/// on the theme's own background, dark or light, and its tooltip tells the reason.
/// @param miert  the reason; an empty one takes the mark away and gives the field's own tooltip back
void mezoJeloles(QWidget& mezo, const QString& miert);

/// The mark of one field, kept as the field's child.
class TMezoJeloles : public QObject {
    Q_OBJECT

public:
    explicit TMezoJeloles(QWidget& mezo);
    void allit(const QString& miert);

private:
    void szinez();
    bool eventFilter(QObject* targy, QEvent* esemeny) override;

    QWidget& mezo_;
    QLineEdit& sor_;  ///< where the field shows its text
    bool jelolt_ = false;
    QString sajatSugo_;  ///< the field's tooltip without a mark
};
