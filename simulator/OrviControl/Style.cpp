#include "host/OrviControl/Style.h"

#include <QFontDatabase>

namespace {

QString Literal(const char* szText)
{
    return QString::fromLatin1(szText);
}

} // namespace

QString g_labelNoFrameStyle = Literal("QLabel{background:transparent; color:white; border:none;}");
QString g_labelWarnStyle = Literal("QLabel{background:transparent; color:rgb(255,120,90); border:none;}");
QString g_pushButtonStyle = Literal(
    "QPushButton{background:rgb(70,70,70); color:white; border:1px solid rgb(7,7,7); border-radius:4px;}"
    "QPushButton:hover{background:rgb(85,85,85);}"
    "QPushButton:pressed{background:rgb(50,50,50);}"
    "QPushButton:focus{border:1px solid rgb(74,144,226);}"
    "QPushButton:disabled{color:rgb(120,120,120); background:rgb(55,55,55);}");
QString g_menuStyle = Literal("QMenu{background:rgb(31,31,31); color:white; border:1px solid rgb(7,7,7);}"
                              "QMenu::item:selected{background:rgb(74,144,226);}"
                              "QMenu::item:disabled{color:rgb(120,120,120);}");
QString g_checkBoxStyle = Literal("QCheckBox{color:white;}"
                                  "QCheckBox:disabled{color:rgb(120,120,120);}");
QString g_doubleSpinBoxStyle = Literal(
    "QDoubleSpinBox{background:rgb(31,31,31); color:white; border:1px solid rgb(7,7,7); border-radius:4px;}"
    "QDoubleSpinBox:focus{border:1px solid rgb(74,144,226);}"
    "QDoubleSpinBox:disabled{color:rgb(120,120,120);}");

QString GetFontFamily()
{
    return QFontDatabase::systemFont(QFontDatabase::GeneralFont).family();
}

QString GetFontStyleSheet(QString strStyle, QString strSelector, int nFontSize)
{
    return QStringLiteral("%1%2{font-family:\"%3\"; font-size:%4px;}")
        .arg(strStyle, strSelector, GetFontFamily(), QString::number(nFontSize));
}
