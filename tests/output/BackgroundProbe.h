#ifndef TESTS_OUTPUT_BACKGROUNDPROBE_H
#define TESTS_OUTPUT_BACKGROUNDPROBE_H

#include "SenderModuleDialog/output/BackgroundImageDlg.h"
#include "host/OrviControl/CustomComboBox.h"
#include "host/OrviControl/CustomLabel.h"
#include "host/OrviControl/CustomSwitchButton.h"
#include "host/OrviControl/Style.h"
#include "tests/output/OutputDialogSupport.h"
#include "tests/support/Controls.h"
#include "tests/support/RecordingHost.h"

#include <QDir>
#include <QDirIterator>
#include <QDoubleSpinBox>
#include <QFile>
#include <QMenu>
#include <QPushButton>
#include <QSlider>
#include <QTemporaryDir>
#include <QtTest>

/// What the tests of the background picture dialog share.
namespace BackgroundProbe {

using OutputDialogSupport::CFileAnswers;

inline const QString c_strPictureEvent = QStringLiteral("PostLabelEvent(0x24000, 1, 0, 0)");
inline const QString c_strViewEvent = QStringLiteral("PostLabelEvent(0x4000, 1, 0, 0)");

/// A host with real folders: pictures to choose from, and the place where the sender's picture is kept.
class CFolderHost
{
public:
    CFolderHost()
    {
        host.constantData.strImageFolder = Path("kept/pictures");
        host.constantData.strImageFile = Path("kept/pictures/sender 0.png");
        SetRecord(128, true, 0);
    }

    QString Path(const char* szName) const { return dir.filePath(QString::fromUtf8(szName)); }
    QString Stored() const { return host.constantData.strImageFile; }
    /// Writes a picture, with its folders, and gives its path.
    QString Write(const char* szName, const QByteArray& bytes) const
    {
        QString strPath = Path(szName);
        QDir().mkpath(QFileInfo(strPath).absolutePath());
        QFile file(strPath);
        if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
            qFatal("cannot write the picture");
        return strPath;
    }
    QString Store(const QByteArray& bytes) const { return Write("kept/pictures/sender 0.png", bytes); }
    static QByteArray Read(const QString& strPath)
    {
        QFile file(strPath);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("no file");
    }
    void SetRecord(int nAlpha, bool bEnable, int nFit)
    {
        host.projectData.sender.BkImageAlpha = quint8(nAlpha);
        host.projectData.sender.BkImageEnable = bEnable;
        host.projectData.sender.BkImageFit = quint8(nFit);
    }
    /// Opacity, switch and fit of the record.
    QVector<int> Record() const
    {
        const CSender& sender = host.projectData.sender;
        return {int(sender.BkImageAlpha), int(sender.BkImageEnable), int(sender.BkImageFit)};
    }
    QStringList Events() const { return host.record.Only({QStringLiteral("PostLabelEvent")}); }

    /// Everything below the temporary folder.
    QStringList Tree() const
    {
        QStringList listPaths;
        QDirIterator it(dir.path(), QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot,
                        QDirIterator::Subdirectories);
        while (it.hasNext())
            listPaths.append(QDir(dir.path()).relativeFilePath(it.next()));
        listPaths.sort();
        return listPaths;
    }

    QTemporaryDir dir;
    CRecordingHost host;
};

/// The dialog with names for its controls.
class CProbe
{
public:
    CCustomSwitchButton& Switch() const { return Control<CCustomSwitchButton>(dialog, "enable"); }
    QPushButton& Choose() const { return Control<QPushButton>(dialog, "choose"); }
    CCustomComboBox& Fit() const { return Control<CCustomComboBox>(dialog, "fit"); }
    QSlider& Slider() const { return Control<QSlider>(dialog, "transparencySlider"); }
    QDoubleSpinBox& Spin() const { return Control<QDoubleSpinBox>(dialog, "transparency"); }
    /// Enabled state of the four controls behind the switch.
    QVector<bool> Enabled() const
    {
        return {Choose().isEnabled(), Fit().isEnabled(), Slider().isEnabled(), Spin().isEnabled()};
    }
    void Act(int nId) { QVERIFY(QMetaObject::invokeMethod(&dialog, "ActionSlots", Q_ARG(int, nId))); }
    /// Chooses a file through the file dialog.
    void ChooseFile(const QString& strPath)
    {
        CFileAnswers answers;
        answers.Plan(strPath);
        Act(1);
        QCOMPARE(answers.Shown().size(), 1);
    }

    CBackgroundImageDlg dialog{nullptr};
};

inline const QVector<bool> c_vecAllEnabled = {true, true, true, true};
inline const QVector<bool> c_vecAllDisabled = {false, false, false, false};

} // namespace BackgroundProbe

#endif // TESTS_OUTPUT_BACKGROUNDPROBE_H
