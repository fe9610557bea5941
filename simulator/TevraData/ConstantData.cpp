#include "host/TevraData/ConstantData.h"

#include "simulator/CommonClass/JournalCall.h"
#include "simulator/CommonClass/Simulator.h"

#include <QDir>

namespace {

class CSimulatedConstantData : public CConstantData
{
public:
    QString GetBKImagePath() override { return CSimulator::Instance().Document().PictureFolder(); }

    QString GetSenderBKImgName(int nSender, bool bFullPath) override
    {
        CSimulator& simulator = CSimulator::Instance();
        const QString strName = simulator.Document().PictureName(nSender);
        return bFullPath ? QDir(simulator.Document().PictureFolder()).filePath(strName) : strName;
    }
};

class CJournalledConstantData : public CJournalledFront<CConstantData>
{
public:
    using CJournalledFront::CJournalledFront;

    QString GetBKImagePath() override
    {
        return Call(enJournalRead, "GetBKImagePath", &CConstantData::GetBKImagePath);
    }
    QString GetSenderBKImgName(int nSender, bool bFullPath) override
    {
        return Call(enJournalRead, "GetSenderBKImgName", &CConstantData::GetSenderBKImgName, nSender,
                    bFullPath);
    }
};

} // namespace

CConstantData* GetConstantData()
{
    static CSimulatedConstantData s_data;
    static CJournalledConstantData s_front(s_data, CSimulator::Instance().Journal(), "CConstantData");
    return &s_front;
}
