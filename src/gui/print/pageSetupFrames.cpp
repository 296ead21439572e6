#include "gui/print/pageSetupFrames.h"

#include "gui/widgets/qtText.h"

#include <QGridLayout>
#include <QLabel>
#include <QRadioButton>

namespace gui {

QLineEdit* boundEdit(const char* name, std::string& member) {
    auto* edit = new QLineEdit(toQt(member));
    edit->setObjectName(QLatin1String(name));
    QObject::connect(edit, &QLineEdit::textChanged, edit,
                     [&member](const QString& text) { member = fromQt(text); });
    return edit;
}

QGroupBox* makeMarginsFrame(std::string& left, std::string& right, std::string& top, std::string& bottom) {
    struct Box {
        const char* name;
        QString caption;
        std::string* member;
    };
    auto* frame = new QGroupBox(QObject::tr(" Margins "));
    auto* grid = new QGridLayout(frame);
    int row = 0;
    for (const Box& box :
         {Box{"leftTxt", QObject::tr("Left:"), &left}, Box{"rightTxt", QObject::tr("Right:"), &right},
          Box{"TopTxt", QObject::tr("Top:"), &top}, Box{"bottomTxt", QObject::tr("Bottom:"), &bottom}}) {
        auto* label = new QLabel(box.caption);
        QLineEdit* edit = boundEdit(box.name, *box.member);
        edit->setMaximumWidth(edit->fontMetrics().averageCharWidth() * 12);
        label->setBuddy(edit);
        grid->addWidget(label, row, 0);
        grid->addWidget(edit, row, 1);
        grid->addWidget(new QLabel(QObject::tr("inches.")), row, 2);
        ++row;
    }
    grid->setColumnStretch(2, 1);
    grid->setRowStretch(row, 1);
    return frame;
}

QGroupBox* makeOptionsFrame(const QString& caption, const char* firstName, const QString& first,
                            const char* secondName, const QString& second, bool& isFirst) {
    auto* frame = new QGroupBox(caption);
    auto* row = new QHBoxLayout(frame);
    auto* one = new QRadioButton(first);
    auto* other = new QRadioButton(second);
    one->setObjectName(QLatin1String(firstName));
    other->setObjectName(QLatin1String(secondName));
    (isFirst ? one : other)->setChecked(true);
    QObject::connect(one, &QRadioButton::toggled, frame, [&isFirst](bool checked) { isFirst = checked; });
    row->addWidget(one);
    row->addWidget(other);
    row->addStretch();
    return frame;
}

} // namespace gui
