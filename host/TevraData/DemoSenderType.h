#ifndef HOST_TEVRADATA_DEMOSENDERTYPE_H
#define HOST_TEVRADATA_DEMOSENDERTYPE_H

/// The sender types of a demo project, as `CProjectData::SetDemoSenderType` takes them. The last one stands
/// apart from the other sender type codes, intentionally.
enum enDemoSenderType
{
    enDemoM6K = 21,
    enDemoR16Pro = 46,
    enDemoT4 = 16,
    enDemoT6 = 17,
    enDemoT6Pro = 35,
    enDemoT8 = 0x20002
};

#endif // HOST_TEVRADATA_DEMOSENDERTYPE_H
