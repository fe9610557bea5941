#include "SenderModuleDialog/edid/EDIDRaw.h"
#include "instruments/edid/Checksum.h"

#include <QtTest>

namespace {

QByteArray BlockOf(const CEDIDRaw& edid)
{
    return QByteArray(reinterpret_cast<const char*>(&edid), sizeof edid);
}

quint8 ChecksumOf(const QByteArray& block)
{
    return Edid::Checksum(reinterpret_cast<const quint8*>(block.constData()));
}

} // namespace

class TestChecksum : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void ABlockOfZerosHasTheChecksumZero();
    void TheChecksumIsThatOfTheBuiltBlock();
    void TheLastByteHasNoSay();
};

void TestChecksum::ABlockOfZerosHasTheChecksumZero()
{
    QCOMPARE(ChecksumOf(QByteArray(c_nEdidBlockSize, '\0')), quint8(0));
}

void TestChecksum::TheChecksumIsThatOfTheBuiltBlock()
{
    CEDIDRaw edid;
    edid.ChangeWH(1920, 1080, 60.0F);
    const QByteArray block = BlockOf(edid);
    QCOMPARE(ChecksumOf(block), quint8(block.back()));
}

void TestChecksum::TheLastByteHasNoSay()
{
    QByteArray block(c_nEdidBlockSize, '\1');
    const quint8 byBefore = ChecksumOf(block);
    block[Edid::c_nChecksumOffset] = '\x55';
    QCOMPARE(ChecksumOf(block), byBefore);
}

QTEST_APPLESS_MAIN(TestChecksum)
#include "TestChecksum.moc"
