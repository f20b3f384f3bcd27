#include "windows/idovalaszto.h"

#include <QRadioButton>
#include <QVBoxLayout>

QGroupBox* ujIdoValaszto(QWidget* szulo) {
    auto* csoport = new QGroupBox("Idő-választó", szulo);
    csoport->setObjectName("RadioGroupIdovalaszto1");
    auto* sor = new QVBoxLayout(csoport);
    for (const char* felirat : {"Zóna idő (ZN)", "Helyi középidő (LMT)", "Greenwich-i középidő (GMT)"})
        sor->addWidget(new QRadioButton(felirat, csoport));
    return csoport;
}
