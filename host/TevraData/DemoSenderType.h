#ifndef HOST_TEVRADATA_DEMOSENDERTYPE_H
#define HOST_TEVRADATA_DEMOSENDERTYPE_H

/// The sender types of a demo project, as `CProjectData::SetDemoSenderType` takes them. The last one stands
/// apart from the other sender type codes, intentionally.
enum enDemoSenderType
{
    enDemoM6K = 21,    ///< shown as "M6K"
    enDemoR16Pro = 46, ///< shown as "R16 PRO"
    enDemoT4 = 16,     ///< shown as "T4"
    enDemoT6 = 17,     ///< shown as "T6"
    enDemoT6Pro = 35,  ///< shown as "T6 PRO"
    enDemoT8 = 0x20002 ///< shown as "T8"
};

#endif // HOST_TEVRADATA_DEMOSENDERTYPE_H
