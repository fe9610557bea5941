#include "simulator/CommonClass/Catalogue.h"

#include "simulator/CommonClass/JsonArchive.h"
#include "simulator/CommonClass/ProjectDescriptions.h"
#include "simulator/CommonClass/SimulatorText.h"

#include <QFile>
#include <QJsonDocument>

#include <algorithm>

/// The contents of the catalogue file. Limits, sets of inputs and families have names, so each is
/// written only once.
struct SCatalogueLimit
{
    QString strName;
    CSenderEdidLimitData limit;
    int nMaxPixelClock = 0;
};

struct SCatalogueInput
{
    int nInterfaceId = 0;
    QString strName;
    QString strLimit;
};

struct SCatalogueInputSet
{
    QString strName;
    QList<SCatalogueInput> listInputs;
};

struct SCatalogueFamily
{
    QString strName;
    bool bVideoProcessor = false;
    bool bSupport10Bit = false;
    bool bSupport12Bit = false;
    bool bExtendedEdid = false;
    bool bCanvasFromHardware = false;
    bool bExtensionBlock = false;
    bool bFactorySetting = false; ///< the inputs come with a setting in force
    int nOutputPorts = 0;
    SCanvasLimit canvasLimit;
    QString strInputs;
};

struct SCatalogueSender
{
    int nType = 0;
    QString strModel;
    QString strFamily;
};

struct SCatalogueFile
{
    QList<SCatalogueLimit> listLimits;
    QList<SCatalogueInputSet> listInputSets;
    QList<SCatalogueFamily> listFamilies;
    QList<SCatalogueSender> listSenders;
};

template <class TArchive>
void Describe(TArchive& archive, SCatalogueLimit& limit)
{
    archive.Field("name", limit.strName, c_textLength);
    archive.Field("limit", limit.limit);
    archive.Field("maxPixelClock", limit.nMaxPixelClock, SRange{0, 10000});
}

template <class TArchive>
void Describe(TArchive& archive, SCatalogueInput& input)
{
    archive.Field("interface", input.nInterfaceId, SRange{0, 255});
    archive.Field("name", input.strName, c_textLength);
    archive.Field("limit", input.strLimit, c_textLength);
}

template <class TArchive>
void Describe(TArchive& archive, SCatalogueInputSet& set)
{
    archive.Field("name", set.strName, c_textLength);
    archive.Field("inputs", set.listInputs);
}

template <class TArchive>
void Describe(TArchive& archive, SCatalogueFamily& family)
{
    archive.Field("name", family.strName, c_textLength);
    archive.Field("videoProcessor", family.bVideoProcessor);
    archive.Field("support10Bit", family.bSupport10Bit);
    archive.Field("support12Bit", family.bSupport12Bit);
    archive.Field("extendedEdid", family.bExtendedEdid);
    archive.Field("canvasFromHardware", family.bCanvasFromHardware);
    archive.Field("extensionBlock", family.bExtensionBlock);
    archive.Field("factorySetting", family.bFactorySetting);
    archive.Field("outputPorts", family.nOutputPorts, SRange{1, 1024});
    archive.Field("canvasLimit", family.canvasLimit);
    archive.Field("inputs", family.strInputs, c_textLength);
}

template <class TArchive>
void Describe(TArchive& archive, SCatalogueSender& sender)
{
    archive.Field("type", sender.nType);
    archive.Field("model", sender.strModel, c_textLength);
    archive.Field("family", sender.strFamily, c_textLength);
}

template <class TArchive>
void Describe(TArchive& archive, SCatalogueFile& file)
{
    archive.Field("limits", file.listLimits);
    archive.Field("inputSets", file.listInputSets);
    archive.Field("families", file.listFamilies);
    archive.Field("senders", file.listSenders);
}

namespace {

const QSize c_sizeFactory = QSize(1920, 1080);

/// The setting of a factory-new input: 1920 x 1080 at 60 Hz, 8 bit, RGB.
SEdidSetting FactorySetting()
{
    SEdidSetting setting;
    setting.byRate = 60;
    setting.wWidth = quint16(c_sizeFactory.width());
    setting.wHeight = quint16(c_sizeFactory.height());
    setting.byFormatFlags = 0x12;
    return setting;
}

/// The element with that name; an unknown name is an error.
template <class TElement>
TElement Named(const QList<TElement>& list, const QString& strName, const SJsonPlace& place)
{
    const auto itElement = std::find_if(list.cbegin(), list.cend(), [&strName](const TElement& element) {
        return element.strName == strName;
    });
    if (itElement != list.cend())
        return *itElement;
    place.Refuse(CSimulatorText::tr("nothing is called \"%1\".").arg(strName));
    return {};
}

SSimulatedInput MakeInput(const SCatalogueFile& file, const SCatalogueInput& input, bool bFactorySetting,
                          const SJsonPlace& place)
{
    const SCatalogueLimit limit = Named(file.listLimits, input.strLimit, place);
    SSimulatedInput made;
    made.nInterfaceId = input.nInterfaceId;
    made.strName = input.strName;
    made.limit = limit.limit;
    made.nMaxPixelClock = limit.nMaxPixelClock;
    if (bFactorySetting)
        made.setting = FactorySetting();
    return made;
}

SSenderCapability MakeCapability(const SCatalogueSender& sender, const SCatalogueFamily& family)
{
    SSenderCapability capability;
    capability.nType = sender.nType;
    capability.strModel = sender.strModel;
    capability.bVideoProcessor = family.bVideoProcessor;
    capability.bSupport10Bit = family.bSupport10Bit;
    capability.bSupport12Bit = family.bSupport12Bit;
    capability.bExtendedEdid = family.bExtendedEdid;
    capability.bCanvasFromHardware = family.bCanvasFromHardware;
    capability.bExtensionBlock = family.bExtensionBlock;
    capability.canvasLimit = family.canvasLimit;
    return capability;
}

SSimulatedSender MakeSender(const SCatalogueFile& file, const SCatalogueSender& sender,
                            const SJsonPlace& place)
{
    const SCatalogueFamily family = Named(file.listFamilies, sender.strFamily, place);
    SSimulatedSender made;
    made.capability = MakeCapability(sender, family);
    made.record.nOutputPortCount = family.nOutputPorts;
    made.record.sizeCanvas = c_sizeFactory;
    if (family.bCanvasFromHardware)
        made.sizeHardwareCanvas = c_sizeFactory;
    const QList<SCatalogueInput> listInputs = Named(file.listInputSets, family.strInputs, place).listInputs;
    for (const SCatalogueInput& input : listInputs)
        made.listInputs.push_back(MakeInput(file, input, family.bFactorySetting, place));
    return made;
}

CCatalogue BuiltIn()
{
    QFile file(QStringLiteral(":/simulator/catalogue.json"));
    SFileProblem problem;
    problem.strFile = file.fileName();
    if (!file.open(QIODevice::ReadOnly))
        qFatal("%s: %s", qPrintable(file.fileName()), qPrintable(file.errorString()));
    CCatalogue catalogue = CCatalogue::FromJson(file.readAll(), problem);
    if (problem.IsSet())
        qFatal("%s", qPrintable(problem.Text()));
    return catalogue;
}

} // namespace

const CCatalogue& CCatalogue::Instance()
{
    static const CCatalogue s_catalogue = BuiltIn();
    return s_catalogue;
}

CCatalogue CCatalogue::FromJson(const QByteArray& baJson, SFileProblem& problem)
{
    const SJsonPlace place = {QString(), problem};
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(baJson, &error);
    SCatalogueFile file;
    if (document.isObject())
        ReadJson(place, document.object(), file);
    else
        place.Refuse(CSimulatorText::tr("the file is not JSON: %1").arg(error.errorString()));
    CCatalogue catalogue;
    for (int nIndex = 0; nIndex < file.listSenders.size() && !problem.IsSet(); ++nIndex) {
        const SCatalogueSender& sender = file.listSenders.at(nIndex);
        const SJsonPlace placeSender = place.Key(QStringLiteral("senders")).Element(nIndex);
        if (catalogue.Contains(sender.nType))
            placeSender.Refuse(CSimulatorText::tr("the type %1 is given twice.").arg(sender.nType));
        catalogue.m_mapSenders.emplace(sender.nType, MakeSender(file, sender, placeSender));
    }
    return problem.IsSet() ? CCatalogue() : catalogue;
}

QList<int> CCatalogue::Types() const
{
    QList<int> listTypes;
    for (const auto& [nType, sender] : m_mapSenders)
        listTypes.append(nType);
    return listTypes;
}

QString CCatalogue::ModelName(int nType) const
{
    const auto itSender = m_mapSenders.find(nType);
    return itSender == m_mapSenders.end() ? QString() : itSender->second.capability.strModel;
}

std::optional<SSimulatedSender> CCatalogue::NewSender(int nType) const
{
    const auto itSender = m_mapSenders.find(nType);
    return itSender == m_mapSenders.end() ? std::nullopt : std::make_optional(itSender->second);
}
