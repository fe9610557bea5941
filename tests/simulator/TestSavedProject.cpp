#include "simulator/CommonClass/ProjectFile.h"
#include "simulator/CommonClass/SavedProject.h"

#include <QTemporaryDir>
#include <QtTest>

/// What is known of a project's last save.
class TestSavedProject : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void AReplacedProjectIsSaved();
    void AChangeDiffersUntilItIsWritten();
    void TheCurrentSenderIsNoDifference();
    void AFailedWriteChangesNothing();
    void OnlyTheAddressesAreWritten();

private:
    QString Path() const { return m_dir->filePath(QStringLiteral("project.json")); }
    bool Differs() const { return m_saved->DiffersFrom(FingerprintOf(m_project)); }

    std::unique_ptr<QTemporaryDir> m_dir;
    std::unique_ptr<CSavedProject> m_saved;
    SSimulatedProject m_project;
    SFileProblem m_problem;
};

void TestSavedProject::init()
{
    m_dir = std::make_unique<QTemporaryDir>();
    m_saved = std::make_unique<CSavedProject>();
    m_project = {};
    m_saved->Replace(m_project, FingerprintOf(m_project), QString());
}

void TestSavedProject::AReplacedProjectIsSaved()
{
    QVERIFY(!Differs());
    QCOMPARE(m_saved->File(), QString());
}

void TestSavedProject::AChangeDiffersUntilItIsWritten()
{
    m_project.addressing.nCountLimitByIP += 1;
    QVERIFY(Differs());
    QVERIFY(m_saved->Write(m_project, Path(), m_problem));
    QVERIFY(!Differs());
    QCOMPARE(m_saved->File(), Path());
    const std::optional<SSimulatedProject> read = ProjectFile::Read(Path(), m_problem);
    QVERIFY(read.has_value());
    QVERIFY(!m_saved->DiffersFrom(FingerprintOf(*read)));
}

void TestSavedProject::TheCurrentSenderIsNoDifference()
{
    m_project.nCurSender = 2;
    QVERIFY(!Differs());
}

void TestSavedProject::AFailedWriteChangesNothing()
{
    m_project.addressing.nCountLimitByIP += 1;
    QVERIFY(!m_saved->Write(m_project, m_dir->filePath(QStringLiteral("nowhere/project.json")), m_problem));
    QVERIFY(!m_problem.strWhat.isEmpty());
    QVERIFY(Differs());
    QCOMPARE(m_saved->File(), QString());
}

void TestSavedProject::OnlyTheAddressesAreWritten()
{
    QVERIFY(m_saved->Write(m_project, Path(), m_problem));
    const QStringList listAddresses = {QStringLiteral("10.0.0.5(Stage)")};
    m_project.addresses = {listAddresses, listAddresses, listAddresses};
    m_project.addressing.nCountLimitByIP += 1;
    QVERIFY(m_saved->WriteAddresses(m_project, m_problem));
    const std::optional<SSimulatedProject> read = ProjectFile::Read(Path(), m_problem);
    QVERIFY(read.has_value());
    QCOMPARE(read->addresses.listStored, listAddresses);
    QVERIFY(Differs());
    m_project.addressing.nCountLimitByIP -= 1;
    QVERIFY(!Differs());
}

QTEST_GUILESS_MAIN(TestSavedProject)
#include "TestSavedProject.moc"
