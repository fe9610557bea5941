#include "SenderModuleDialog/SenderModuleDialogInit.h"
#include "simulator/CommonClass/Simulator.h"
#include "workbench/simulation/SenderProperties.h"
#include "workbench/simulation/SimulationPage.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QSpinBox>
#include <QtTest>

namespace {

/// A value that differs from the present one and that the property takes.
QVariant AnotherValue(const SSenderProperty& property, const QVariant& present)
{
    switch (property.editor) {
    case enEditor::enText:
        return present.toString() + QLatin1Char('!');
    case enEditor::enSwitch:
        return !present.toBool();
    case enEditor::enChoice:
        return property.vecChoices.back().nValue == present.toInt() ? property.vecChoices.front().nValue
                                                                    : property.vecChoices.back().nValue;
    case enEditor::enNumber:
    case enEditor::enDecimal:
        break;
    }
    return present.toInt() == property.nMax ? property.nMin : property.nMax;
}

/// The editor with that accessible name.
template <class TEditor>
TEditor* Editor(const QWidget& page, const char* szName)
{
    for (TEditor* pEditor : page.findChildren<TEditor*>())
        if (pEditor->accessibleName() == QString::fromUtf8(szName))
            return pEditor;
    return nullptr;
}

QCheckBox* ProcessorBox(const QWidget& page)
{
    return Editor<QCheckBox>(page, "视频处理器");
}

} // namespace

class TestSimulationPage : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void EachPropertyIsReadBackAsItWasWritten_data();
    void EachPropertyIsReadBackAsItWasWritten();
    void AnEditorChangesTheSelectedSender();
    void EditorsFollowTheProject();
    void WithoutASenderNothingCanBeEdited();
    void BeforeAnythingIsSelectedNothingIsChanged();
    void WhatANumberStandsForIsSaidInWords();
    void FaultsStandFirst();
    void AllGroupsShareOneColumnGrid();
    void OnAWideScreenValuesStayNearTheirCaptions();
};

void TestSimulationPage::init()
{
    SenderModuleDialogInit(CSimulator::Instance().Label());
    CSimulator::Instance().Document().NewProject();
}

void TestSimulationPage::EachPropertyIsReadBackAsItWasWritten_data()
{
    QTest::addColumn<int>("index");
    int nIndex = 0;
    for (const SSenderProperty& property : SenderProperties::All())
        QTest::addRow("%s: %s", property.szGroup, property.szName) << nIndex++;
}

void TestSimulationPage::EachPropertyIsReadBackAsItWasWritten()
{
    QFETCH(int, index);
    const SSenderProperty& property = SenderProperties::All()[std::size_t(index)];
    CSimulator& simulator = CSimulator::Instance();
    const QVariant value = AnotherValue(property, property.funcRead(simulator.Project(), 1));
    const QVariant otherBefore = property.funcRead(simulator.Project(), 2);
    simulator.Document().Change([&](SSimulatedProject& project) { property.funcWrite(project, 1, value); });
    QCOMPARE(property.funcRead(simulator.Project(), 1).toString(), value.toString());
    const bool bOfTheSender = property.szGroup != SenderProperties::All().back().szGroup;
    if (bOfTheSender)
        QCOMPARE(property.funcRead(simulator.Project(), 2), otherBefore);
}

void TestSimulationPage::AnEditorChangesTheSelectedSender()
{
    CSimulationPage page;
    page.ShowSelection({3, -1});
    const bool bBefore = CSimulator::Instance().Project().listSenders[3].capability.bVideoProcessor;
    QTest::keyClick(ProcessorBox(page), Qt::Key_Space);
    QCOMPARE(CSimulator::Instance().Project().listSenders[3].capability.bVideoProcessor, !bBefore);
}

void TestSimulationPage::EditorsFollowTheProject()
{
    CSimulationPage page;
    page.ShowSelection({3, -1});
    CSimulator::Instance().Document().Change([](SSimulatedProject& project) {
        project.listSenders[3].capability.bVideoProcessor =
            !project.listSenders[3].capability.bVideoProcessor;
    });
    QCOMPARE(ProcessorBox(page)->isChecked(),
             CSimulator::Instance().Project().listSenders[3].capability.bVideoProcessor);
}

void TestSimulationPage::WithoutASenderNothingCanBeEdited()
{
    CSimulationPage page;
    page.ShowSelection({-1, -1});
    QVERIFY(!ProcessorBox(page)->isEnabled());
}

void TestSimulationPage::BeforeAnythingIsSelectedNothingIsChanged()
{
    CSimulationPage page;
    auto* pCheckBox = ProcessorBox(page);
    QVERIFY(!pCheckBox->isEnabled());
    const QJsonObject before = ProjectToJson(CSimulator::Instance().Project());
    pCheckBox->toggle();
    QCOMPARE(ProjectToJson(CSimulator::Instance().Project()), before);
}

void TestSimulationPage::WhatANumberStandsForIsSaidInWords()
{
    CSimulationPage page;
    page.ShowSelection({3, -1});
    QCOMPARE(Editor<QDoubleSpinBox>(page, "实际输入帧率 (Hz)")->text(), QStringLiteral("未知"));
    QCOMPARE(Editor<QSpinBox>(page, "已有主控数量")->text(), QStringLiteral("发送器的数量"));
    QCOMPARE(Editor<QComboBox>(page, "探测方式")->currentData().toInt(), 2);
}

void TestSimulationPage::FaultsStandFirst()
{
    QCOMPARE(QString::fromUtf8(SenderProperties::All().front().szGroup), QStringLiteral("故障"));
}

void TestSimulationPage::AllGroupsShareOneColumnGrid()
{
    CSimulationPage page;
    page.resize(900, 2000);
    page.ShowSelection({3, -1});
    page.show();
    QSet<int> setLeft;
    for (const QCheckBox* pEditor : page.findChildren<QCheckBox*>())
        setLeft.insert(pEditor->mapTo(&page, QPoint()).x());
    QCOMPARE(setLeft.size(), 1);
}

void TestSimulationPage::OnAWideScreenValuesStayNearTheirCaptions()
{
    CSimulationPage page;
    page.resize(3400, 1800);
    page.ShowSelection({3, -1});
    page.show();
    for (const QSpinBox* pEditor : page.findChildren<QSpinBox*>())
        QVERIFY(pEditor->mapTo(&page, pEditor->rect().topRight()).x() < 1000);
}

QTEST_MAIN(TestSimulationPage)
#include "TestSimulationPage.moc"
