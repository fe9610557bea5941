<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="zh_CN">
<context>
    <name>CCustomDialog</name>
    <message>
        <source>DVI1~4的点数和不能超过888万。</source>
        <translation>DVI 1 to 4: pixel sum may not exceed 8.88 million.</translation>
    </message>
    <message>
        <source>DVI5~8的点数和不能超过888万。</source>
        <translation>DVI 5 to 8: pixel sum may not exceed 8.88 million.</translation>
    </message>
    <message>
        <source>EDID的输出面积不能超过260W。</source>
        <translation>The EDID output area may not exceed 2.6 million pixels.</translation>
    </message>
    <message>
        <source>EDID的输出面积不能超过888W。</source>
        <translation>The EDID output area may not exceed 8.88 million pixels.</translation>
    </message>
    <message>
        <source>EDID设置</source>
        <translation>EDID settings</translation>
    </message>
    <message>
        <source>IP名称</source>
        <translation>IP name</translation>
    </message>
    <message>
        <source>IP地址</source>
        <translation>IP address</translation>
    </message>
    <message>
        <source>IP地址不合理。</source>
        <translation>The IP address is unreasonable.</translation>
    </message>
    <message>
        <source>IP地址不能以0开头。</source>
        <translation>The IP address must not begin with 0.</translation>
    </message>
    <message>
        <source>IP地址与默认网关相同。</source>
        <translation>The IP address equals the default gateway.</translation>
    </message>
    <message>
        <source>IP地址已被使用。</source>
        <translation>The IP address is already in use.</translation>
    </message>
    <message>
        <source>IP地址是广播地址。</source>
        <translation>The IP address is a broadcast address.</translation>
    </message>
    <message>
        <source>主控 %1</source>
        <translation>Processor %1</translation>
    </message>
    <message>
        <source>主控数量</source>
        <translation>Processor count</translation>
    </message>
    <message>
        <source>主控类型</source>
        <translation>Processor type</translation>
    </message>
    <message>
        <source>保存失败。</source>
        <translation>Saving failed.</translation>
    </message>
    <message>
        <source>修改IP地址</source>
        <translation>Change IP address</translation>
    </message>
    <message>
        <source>修缝系数</source>
        <translation>Seam repair coefficient</translation>
    </message>
    <message>
        <source>分辨率</source>
        <translation>Resolution</translation>
    </message>
    <message>
        <source>发送中...</source>
        <translation>Sending...</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>启用</source>
        <translation>Enable</translation>
    </message>
    <message>
        <source>契合度</source>
        <translation>Fit</translation>
    </message>
    <message>
        <source>存在重复的IP地址。</source>
        <translation>There are duplicate IP addresses.</translation>
    </message>
    <message>
        <source>宽</source>
        <translation>Width</translation>
    </message>
    <message>
        <source>屏幕颜色空间（校正后）</source>
        <translation>Screen colour space (after correction)</translation>
    </message>
    <message>
        <source>工程设置支持的最大帧率(%1Hz)小于实际输入的最大帧率(%2Hz)，是否继续？</source>
        <translation>The maximum frame rate that the project supports (%1 Hz) is below the actual maximum input frame rate (%2 Hz). Continue?</translation>
    </message>
    <message>
        <source>已使用DisplayID 1.3扩展块</source>
        <translation>A DisplayID 1.3 extension block is in use</translation>
    </message>
    <message>
        <source>帧率</source>
        <translation>Frame rate</translation>
    </message>
    <message>
        <source>帧率和色深设置</source>
        <translation>Frame rate and colour depth settings</translation>
    </message>
    <message>
        <source>批量添加IP</source>
        <translation>Add IP addresses in a batch</translation>
    </message>
    <message>
        <source>拉伸</source>
        <translation>Stretch</translation>
    </message>
    <message>
        <source>支持的最大帧率</source>
        <translation>Max. supported frame rate</translation>
    </message>
    <message>
        <source>标准</source>
        <translation>Standard</translation>
    </message>
    <message>
        <source>校正系数</source>
        <translation>Correction coefficient</translation>
    </message>
    <message>
        <source>添加数量</source>
        <translation>Count to add</translation>
    </message>
    <message>
        <source>演示工程配置</source>
        <translation>Demo project configuration</translation>
    </message>
    <message>
        <source>电脑</source>
        <translation>computer</translation>
    </message>
    <message>
        <source>画布大小设置</source>
        <translation>Canvas size settings</translation>
    </message>
    <message>
        <source>画布的宽不能大于%1。</source>
        <translation>The canvas width may not exceed %1.</translation>
    </message>
    <message>
        <source>画布的宽或高不能小于%1。</source>
        <translation>The canvas width or height may not be below %1.</translation>
    </message>
    <message>
        <source>画布的面积不能大于%1。</source>
        <translation>The canvas area may not exceed %1.</translation>
    </message>
    <message>
        <source>画布的高不能大于%1。</source>
        <translation>The canvas height may not exceed %1.</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>确认</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>背景图片设置</source>
        <translation>Background picture settings</translation>
    </message>
    <message>
        <source>自定义</source>
        <translation>Custom</translation>
    </message>
    <message>
        <source>自定义(%1×%2)</source>
        <translation>Custom (%1×%2)</translation>
    </message>
    <message>
        <source>自定义添加主控</source>
        <translation>Add processors by hand</translation>
    </message>
    <message>
        <source>自定义：%1×%2</source>
        <translation>Custom: %1×%2</translation>
    </message>
    <message>
        <source>色深</source>
        <translation>Colour depth</translation>
    </message>
    <message>
        <source>被覆盖</source>
        <translation>covered</translation>
    </message>
    <message>
        <source>设置IP地址</source>
        <translation>Set IP address</translation>
    </message>
    <message>
        <source>起始IP地址</source>
        <translation>Start address</translation>
    </message>
    <message>
        <source>输入的IP地址和本机电脑的IP地址相同，会导致网络连接探测失败，是否继续？</source>
        <translation>The IP address is the same as this computer&apos;s, so network detection will fail. Continue?</translation>
    </message>
    <message>
        <source>输出口带载面积不能超过655360。</source>
        <translation>The load area of an output port may not exceed 655360.</translation>
    </message>
    <message>
        <source>输出口数量</source>
        <translation>Output port count</translation>
    </message>
    <message>
        <source>输出色彩空间</source>
        <translation>Output colour space</translation>
    </message>
    <message>
        <source>输出色深</source>
        <translation>Output depth</translation>
    </message>
    <message>
        <source>输出视频区域不能超过260万像素。</source>
        <translation>The output video area may not exceed 2.6 million pixels.</translation>
    </message>
    <message>
        <source>输出视频区域不能超过888万像素。</source>
        <translation>The output video area may not exceed 8.88 million pixels.</translation>
    </message>
    <message>
        <source>输出颜色空间</source>
        <translation>Output colour space</translation>
    </message>
    <message>
        <source>连接电脑</source>
        <translation>Connect PC</translation>
    </message>
    <message>
        <source>选取图片...</source>
        <translation>Select picture...</translation>
    </message>
    <message>
        <source>透明度</source>
        <translation>Transparency</translation>
    </message>
    <message>
        <source>重置修缝系数</source>
        <translation>Reset seam repair coefficient</translation>
    </message>
    <message>
        <source>重置校正系数</source>
        <translation>Reset correction coefficient</translation>
    </message>
    <message>
        <source>颜色格式</source>
        <translation>Colour format</translation>
    </message>
    <message>
        <source>高</source>
        <translation>Height</translation>
    </message>
    <message>
        <source>是</source>
        <translation>Yes</translation>
    </message>
    <message>
        <source>否</source>
        <translation>No</translation>
    </message>
    <message>
        <source>复制</source>
        <translation>Copy</translation>
    </message>
    <message>
        <source>粘贴</source>
        <translation>Paste</translation>
    </message>
    <message>
        <source>清空</source>
        <translation>Clear</translation>
    </message>
    <message>
        <source>第 %1 段</source>
        <translation>Octet %1</translation>
    </message>
</context>
</TS>
