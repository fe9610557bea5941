#include "simulator/CommonClass/SavedProject.h"

#include "simulator/CommonClass/ProjectFile.h"

CSavedProject::CSavedProject() = default;

CSavedProject::~CSavedProject() = default;

bool CSavedProject::DiffersFrom(const SProjectFingerprint& present) const
{
    return Difference(m_fingerprintSaved, present).ConcernsFile();
}

void CSavedProject::Replace(const SSimulatedProject& project, const SProjectFingerprint& fingerprint,
                            const QString& strFile)
{
    m_strFile = strFile;
    m_jsonSaved = ProjectToJson(project);
    m_fingerprintSaved = fingerprint;
    m_pictures.Replace(strFile);
}

bool CSavedProject::Write(const SSimulatedProject& project, const QString& strFile, SFileProblem& problem)
{
    const QJsonObject json = ProjectToJson(project);
    if (!ProjectFile::Write(strFile, json, m_strKept, problem))
        return false;
    m_strFile = strFile;
    m_jsonSaved = json;
    m_fingerprintSaved = FingerprintOf(project);
    return true;
}

bool CSavedProject::WriteAddresses(const SSimulatedProject& project, SFileProblem& problem)
{
    QJsonObject json = m_jsonSaved;
    json.insert(QStringLiteral("addresses"), AddressListsToJson(project.addresses));
    if (!ProjectFile::Write(m_strFile, json, m_strKept, problem))
        return false;
    m_jsonSaved = json;
    m_fingerprintSaved.baAddresses = FingerprintOf(project).baAddresses;
    return true;
}
