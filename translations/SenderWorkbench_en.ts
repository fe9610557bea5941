<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="zh_CN">
<context>
    <name>CAddSenderDialog</name>
    <message>
        <source>视频处理器，%1 个输出口</source>
        <translation>Video processors, %1 output ports</translation>
    </message>
    <message>
        <source>发送卡，%1 个输出口</source>
        <translation>Sending cards, %1 output ports</translation>
    </message>
    <message>
        <source>%1 位</source>
        <translation>%1 bit</translation>
    </message>
    <message>
        <source>添加发送器</source>
        <translation>Add senders</translation>
    </message>
    <message>
        <source>型号、类型代码或输出口</source>
        <translation>Model, type code or output ports</translation>
    </message>
    <message>
        <source>发送器类型</source>
        <translation>Types of senders</translation>
    </message>
    <message>
        <source>型号</source>
        <translation>Model</translation>
    </message>
    <message>
        <source>类型</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>色深</source>
        <translation>Depth</translation>
    </message>
    <message>
        <source>输入</source>
        <translation>Inputs</translation>
    </message>
    <message>
        <source>添加</source>
        <translation>Add</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>查找(&amp;F)</source>
        <translation>&amp;Find</translation>
    </message>
    <message>
        <source>数量(&amp;N)</source>
        <translation>&amp;Number</translation>
    </message>
</context>
<context>
    <name>CAdditionReportText</name>
    <message>
        <source>、</source>
        <translation>, </translation>
    </message>
    <message>
        <source>%1 至 %2</source>
        <translation>%1 to %2</translation>
    </message>
    <message>
        <source>已添加 %1 个地址：%2。</source>
        <translation>Addresses added (%1): %2.</translation>
    </message>
    <message>
        <source>略过 %1 个：%2（%3）。</source>
        <translation>Left out (%1): %2 (%3).</translation>
    </message>
</context>
<context>
    <name>CAddressEditor</name>
    <message>
        <source>批量添加地址</source>
        <translation>Add a batch of addresses</translation>
    </message>
    <message>
        <source>设置地址</source>
        <translation>Set addresses</translation>
    </message>
    <message>
        <source>修改地址</source>
        <translation>Change address</translation>
    </message>
    <message>
        <source>地址已修改。</source>
        <translation>The address has been changed.</translation>
    </message>
    <message>
        <source>恢复原地址</source>
        <translation>Reset addresses</translation>
    </message>
    <message>
        <source>已恢复为 %1。</source>
        <translation>Back to %1.</translation>
    </message>
    <message>
        <source>、</source>
        <translation>, </translation>
    </message>
    <message>
        <source>删除 %1 个地址</source>
        <translation>Remove addresses (%1)</translation>
    </message>
    <message>
        <source>已删除 %1 个地址。</source>
        <translation>Addresses removed: %1.</translation>
    </message>
    <message>
        <source>手动添加主控</source>
        <translation>Add processors by hand</translation>
    </message>
    <message>
        <source>已添加 %1 个主控，各有 %2 个输出口。</source>
        <translation>%1 processors added, each with %2 output ports.</translation>
    </message>
</context>
<context>
    <name>CAddressListModel</name>
    <message>
        <source>改为 %1，尚未应用</source>
        <translation>changed to %1, not yet applied</translation>
    </message>
    <message>
        <source>原为 %1</source>
        <translation>was %1</translation>
    </message>
    <message>
        <source>原样</source>
        <translation>as first stored</translation>
    </message>
    <message>
        <source>地址</source>
        <translation>Address</translation>
    </message>
    <message>
        <source>名称</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>状态</source>
        <translation>State</translation>
    </message>
</context>
<context>
    <name>CAddressPage</name>
    <message>
        <source>批量添加...</source>
        <translation>Add a batch...</translation>
    </message>
    <message>
        <source>设置地址...</source>
        <translation>Set addresses...</translation>
    </message>
    <message>
        <source>手动添加主控...</source>
        <translation>Add processors by hand...</translation>
    </message>
    <message>
        <source>新建演示工程...</source>
        <translation>New demo project...</translation>
    </message>
    <message>
        <source>地址</source>
        <translation>Addresses</translation>
    </message>
    <message>
        <source>检查地址</source>
        <translation>Check an address</translation>
    </message>
    <message>
        <source>要检查的地址</source>
        <translation>Address to check</translation>
    </message>
    <message>
        <source>逐个设置地址</source>
        <translation>Set one by one</translation>
    </message>
    <message>
        <source>主控数量</source>
        <translation>Processors</translation>
    </message>
    <message>
        <source>主控的地址</source>
        <translation>Addresses of the processors</translation>
    </message>
    <message>
        <source>修改(&amp;M)...</source>
        <translation>&amp;Modify...</translation>
    </message>
    <message>
        <source>恢复原样(&amp;R)</source>
        <translation>Res&amp;tore</translation>
    </message>
    <message>
        <source>删除(&amp;D)</source>
        <translation>&amp;Remove</translation>
    </message>
</context>
<context>
    <name>CBytePanes</name>
    <message>
        <source>EDID 字节</source>
        <translation>EDID bytes</translation>
    </message>
    <message>
        <source>另一个 EDID 的字节</source>
        <translation>Bytes of the other EDID</translation>
    </message>
</context>
<context>
    <name>CCanvasPreview</name>
    <message>
        <source>%1 × %2 像素，显示为 %3%</source>
        <translation>%1 × %2 pixels, shown at %3%</translation>
    </message>
</context>
<context>
    <name>CChartControls</name>
    <message>
        <source>拖动的点现在留在区域内。</source>
        <translation>Dragged points now stay inside the region.</translation>
    </message>
    <message>
        <source>白点的色温</source>
        <translation>Temperature of white</translation>
    </message>
    <message>
        <source>鼠标在白点上时显示色温</source>
        <translation>Show the colour temperature while the mouse is on a white point</translation>
    </message>
    <message>
        <source>白点吸附 6500 K</source>
        <translation>White snaps to 6500 K</translation>
    </message>
    <message>
        <source>标准名称</source>
        <translation>Name of standard</translation>
    </message>
    <message>
        <source>第一个组与标准相符时，在图上显示标准的名称</source>
        <translation>Name the standard on the chart when the first group matches one</translation>
    </message>
    <message>
        <source>网格</source>
        <translation>Grid</translation>
    </message>
    <message>
        <source>背景...</source>
        <translation>Background...</translation>
    </message>
    <message>
        <source>可行区域</source>
        <translation>Feasible region</translation>
    </message>
    <message>
        <source>点留在区域内</source>
        <translation>Keep points inside</translation>
    </message>
    <message>
        <source>绘制</source>
        <translation>Draw</translation>
    </message>
    <message>
        <source>清除</source>
        <translation>Clear</translation>
    </message>
    <message>
        <source>图的背景颜色</source>
        <translation>Background of the chart</translation>
    </message>
</context>
<context>
    <name>CChartEditor</name>
    <message>
        <source>拖动</source>
        <translation>Drag</translation>
    </message>
</context>
<context>
    <name>CColourPage</name>
    <message>
        <source>色彩</source>
        <translation>Colour</translation>
    </message>
    <message>
        <source>CIE 1931 色度图</source>
        <translation>CIE 1931 chromaticity chart</translation>
    </message>
    <message>
        <source>复制图片</source>
        <translation>Copy picture</translation>
    </message>
    <message>
        <source>导出 PNG...</source>
        <translation>Export PNG...</translation>
    </message>
    <message>
        <source>导出 SVG...</source>
        <translation>Export SVG...</translation>
    </message>
    <message>
        <source>图片已复制到剪贴板。</source>
        <translation>The picture has been copied to the clipboard.</translation>
    </message>
    <message>
        <source>导出 SVG</source>
        <translation>Export SVG</translation>
    </message>
    <message>
        <source>SVG 图形 (*.svg)</source>
        <translation>SVG drawing (*.svg)</translation>
    </message>
    <message>
        <source>导出 PNG</source>
        <translation>Export PNG</translation>
    </message>
    <message>
        <source>PNG 图片 (*.png)</source>
        <translation>PNG picture (*.png)</translation>
    </message>
    <message>
        <source>已保存 %1</source>
        <translation>Saved %1</translation>
    </message>
    <message>
        <source>无法写入 %1：%2。请选择别的位置。</source>
        <translation>Cannot write %1: %2. Please choose another place.</translation>
    </message>
    <message>
        <source>色彩组</source>
        <translation>Groups</translation>
    </message>
    <message>
        <source>读数</source>
        <translation>Readings</translation>
    </message>
    <message>
        <source>拖动白边的点，或用 Tab 键选点、方向键移动；灰边的点不能移动。</source>
        <translation>Drag a point with a white rim, or choose one by Tab and move it by the arrows; grey rims are fixed.</translation>
    </message>
    <message>
        <source>测量</source>
        <translation>Measured</translation>
    </message>
    <message>
        <source>u&apos;v&apos; 图</source>
        <translation>u&apos;v&apos; diagram</translation>
    </message>
    <message>
        <source>显示 CIE 1976 u&apos;v&apos; 图；在 xy 图上拖动点</source>
        <translation>Shows the CIE 1976 u&apos;v&apos; diagram; points are dragged on the xy chart</translation>
    </message>
    <message>
        <source>CIE 1976 u&apos;v&apos; 图</source>
        <translation>CIE 1976 u&apos;v&apos; diagram</translation>
    </message>
</context>
<context>
    <name>CCorrectionPanel</name>
    <message>
        <source>校正</source>
        <translation>Correction</translation>
    </message>
    <message>
        <source>预设值</source>
        <translation>Preset value</translation>
    </message>
    <message>
        <source>取得的值</source>
        <translation>Value taken</translation>
    </message>
    <message>
        <source>校正系数</source>
        <translation>Correction coefficient</translation>
    </message>
    <message>
        <source>重置校正系数</source>
        <translation>Reset the correction coefficient</translation>
    </message>
    <message>
        <source>修缝系数</source>
        <translation>Seam repair coefficient</translation>
    </message>
    <message>
        <source>重置修缝系数</source>
        <translation>Reset the seam repair coefficient</translation>
    </message>
    <message>
        <source>重置...</source>
        <translation>Reset...</translation>
    </message>
    <message>
        <source>校正系数：%1</source>
        <translation>Correction coefficient: %1</translation>
    </message>
    <message>
        <source>修缝系数：%1</source>
        <translation>Seam repair coefficient: %1</translation>
    </message>
</context>
<context>
    <name>CCoverageModel</name>
    <message>
        <source>覆盖 xy</source>
        <translation>In xy</translation>
    </message>
    <message>
        <source>覆盖 u&apos;v&apos;</source>
        <translation>In u&apos;v&apos;</translation>
    </message>
    <message>
        <source>面积 xy</source>
        <translation>Area xy</translation>
    </message>
    <message>
        <source>面积 u&apos;v&apos;</source>
        <translation>Area u&apos;v&apos;</translation>
    </message>
</context>
<context>
    <name>CCustomDialog</name>
    <message>
        <source>分辨率的宽或高不能小于%1。</source>
        <translation>The width or height of the resolution may not be below %1.</translation>
    </message>
    <message>
        <source>分辨率的宽不能大于%1。</source>
        <translation>The width of the resolution may not exceed %1.</translation>
    </message>
    <message>
        <source>分辨率的高不能大于%1。</source>
        <translation>The height of the resolution may not exceed %1.</translation>
    </message>
    <message>
        <source>此帧率下分辨率的面积不能大于%1。</source>
        <translation>At this frame rate the area of the resolution may not exceed %1.</translation>
    </message>
    <message>
        <source>像素时钟%1MHz超过接口的最大值%2MHz。</source>
        <translation>The pixel clock of %1 MHz exceeds the maximum of the input, %2 MHz.</translation>
    </message>
    <message>
        <source>已使用DisplayID 1.3扩展块</source>
        <translation>A DisplayID 1.3 extension block is in use</translation>
    </message>
    <message>
        <source>此接口不支持需要EDID扩展块的分辨率。</source>
        <translation>This input does not support resolutions that need an EDID extension block.</translation>
    </message>
</context>
<context>
    <name>CEdidDocument</name>
    <message>
        <source>全部修复</source>
        <translation>Fix all</translation>
    </message>
</context>
<context>
    <name>CEdidPage</name>
    <message>
        <source>EDID</source>
        <translation>EDID</translation>
    </message>
    <message>
        <source>保存块...</source>
        <translation>Save block...</translation>
    </message>
    <message>
        <source>EDID 存储器没有变化。</source>
        <translation>The EDID memory has not changed.</translation>
    </message>
    <message>
        <source>EDID 存储器更改了 %1 个字节（以颜色标出）。</source>
        <translation>%1 bytes of the EDID memory have changed (shown in colour).</translation>
    </message>
    <message>
        <source>当前模式：%1</source>
        <translation>Mode in force: %1</translation>
    </message>
    <message>
        <source>保存 EDID 块</source>
        <translation>Save EDID block</translation>
    </message>
    <message>
        <source>已保存 %1</source>
        <translation>Saved %1</translation>
    </message>
    <message>
        <source>无法写入 %1：%2。请选择别的位置。</source>
        <translation>%1 cannot be written: %2. Choose another place.</translation>
    </message>
    <message>
        <source>EDID 存储器原来是空的，已写入 128 个字节。</source>
        <translation>The EDID memory was empty; 128 bytes have been written.</translation>
    </message>
    <message>
        <source>EDID 块 (*.bin);;十六进制文本 (*.hex *.txt);;C 数组 (*.c *.h);;JSON (*.json);;所有文件 (*)</source>
        <translation>EDID block (*.bin);;Hexadecimal text (*.hex *.txt);;C array (*.c *.h);;JSON (*.json);;All files (*)</translation>
    </message>
    <message>
        <source>设置 EDID</source>
        <translation>Set EDID</translation>
    </message>
    <message>
        <source>%1 的 EDID 存储器</source>
        <translation>the EDID memory of %1</translation>
    </message>
    <message>
        <source>文件 %1</source>
        <translation>file %1</translation>
    </message>
    <message>
        <source>粘贴的文本</source>
        <translation>pasted text</translation>
    </message>
    <message>
        <source>粘贴的文本，%1</source>
        <translation>pasted text, %1</translation>
    </message>
    <message>
        <source>为 %1 构建的块</source>
        <translation>the block built for %1</translation>
    </message>
    <message>
        <source>%1（已修改）</source>
        <translation>%1 (changed)</translation>
    </message>
    <message>
        <source>%1，%2 个块</source>
        <translation>%1, %2 blocks</translation>
    </message>
    <message>
        <source>打开...</source>
        <translation>Open...</translation>
    </message>
    <message>
        <source>打开 EDID 文件；也可以把文件拖到这里</source>
        <translation>Open an EDID file; it can be dropped here too</translation>
    </message>
    <message>
        <source>粘贴</source>
        <translation>Paste</translation>
    </message>
    <message>
        <source>粘贴十六进制文本、xxd、C 数组、JSON 或 xrandr 的输出</source>
        <translation>Paste hexadecimal text, xxd, a C array, JSON or the output of xrandr</translation>
    </message>
    <message>
        <source>发送器的存储器</source>
        <translation>Sender&apos;s memory</translation>
    </message>
    <message>
        <source>显示所选输入的 EDID 存储器</source>
        <translation>Show the EDID memory of the selected input</translation>
    </message>
    <message>
        <source>构建块</source>
        <translation>Build the block</translation>
    </message>
    <message>
        <source>下一处不同</source>
        <translation>Next difference</translation>
    </message>
    <message>
        <source>显示下一个不同的字段</source>
        <translation>Show the next field that is different</translation>
    </message>
    <message>
        <source>撤销</source>
        <translation>Undo</translation>
    </message>
    <message>
        <source>撤销对块的更改 (Ctrl+Z)</source>
        <translation>Undo the change of the block (Ctrl+Z)</translation>
    </message>
    <message>
        <source>重做</source>
        <translation>Redo</translation>
    </message>
    <message>
        <source>重做对块的更改 (Ctrl+Shift+Z)</source>
        <translation>Redo the change of the block (Ctrl+Shift+Z)</translation>
    </message>
    <message>
        <source>全部修复</source>
        <translation>Fix all</translation>
    </message>
    <message>
        <source>更正标头、扩展块数目和校验和</source>
        <translation>Correct header, extension count and checksums</translation>
    </message>
    <message>
        <source>保存为二进制、十六进制文本、C 数组或 JSON</source>
        <translation>Save as binary, hexadecimal text, C array or JSON</translation>
    </message>
    <message>
        <source>写入存储器</source>
        <translation>Write into memory</translation>
    </message>
    <message>
        <source>写入所选输入的 EDID 存储器</source>
        <translation>Write into the EDID memory of the selected input</translation>
    </message>
    <message>
        <source>比较</source>
        <translation>Compare</translation>
    </message>
    <message>
        <source>EDID 字段</source>
        <translation>EDID fields</translation>
    </message>
    <message>
        <source>构建 %1 的块</source>
        <translation>Build the block of %1</translation>
    </message>
    <message>
        <source>请在左边选择一个输入，或者打开、拖入、粘贴一个 EDID。</source>
        <translation>Select an input on the left, or open, drop or paste an EDID.</translation>
    </message>
    <message>
        <source>%1 的 EDID 存储器是空的：还没有向它写入过模式。
用“编辑 EDID...”写入一个，或者在这里构建块，然后写入存储器。</source>
        <translation>The EDID memory of %1 is empty: no mode was written to it yet.
Write one with &quot;Edit EDID...&quot;, or build the block here and write it into memory.</translation>
    </message>
    <message>
        <source>显示：%1</source>
        <translation>Shown: %1</translation>
    </message>
    <message>
        <source>比较：%1，%2 个字段不同</source>
        <translation>Compared with: %1, %2 fields differ</translation>
    </message>
    <message>
        <source>选择显示器</source>
        <translation>Choose a display</translation>
    </message>
    <message>
        <source>这里有几个 EDID：</source>
        <translation>There are several EDIDs:</translation>
    </message>
    <message>
        <source>两个 EDID 相同。</source>
        <translation>Both EDIDs are the same.</translation>
    </message>
    <message>
        <source>打开</source>
        <translation>Open</translation>
    </message>
    <message>
        <source>打开 EDID</source>
        <translation>Open an EDID</translation>
    </message>
    <message>
        <source>EDID (*.bin *.edid *.hex *.txt *.c *.h *.json);;所有文件 (*)</source>
        <translation>EDID (*.bin *.edid *.hex *.txt *.c *.h *.json);;All files (*)</translation>
    </message>
    <message>
        <source>与文件比较</source>
        <translation>Compare with a file</translation>
    </message>
    <message>
        <source>没有不同的字段。</source>
        <translation>No field is different.</translation>
    </message>
    <message>
        <source>标头、扩展块数目和校验和本来就正确。</source>
        <translation>Header, extension count and checksums were right.</translation>
    </message>
    <message>
        <source>更正了 %1 个字节。</source>
        <translation>Corrected %1 bytes.</translation>
    </message>
    <message>
        <source>还有 %1 个问题，处理方法见下表。</source>
        <translation> %1 findings are left; what to do is in the list below.</translation>
    </message>
    <message>
        <source>输入的 EDID 存储器容纳一个 128 字节的块，这里有 %1 个。只写入基本块吗？扩展块数目将为 0。</source>
        <translation>The EDID memory of an input holds one block of 128 bytes, and here are %1. Write the base block alone? Its extension count becomes 0.</translation>
    </message>
    <message>
        <source>写入 EDID 存储器</source>
        <translation>Write into the EDID memory</translation>
    </message>
    <message>
        <source>无法写入 %1 的 EDID 存储器。请重新选择输入。</source>
        <translation>The EDID memory of %1 cannot be written. Select the input again.</translation>
    </message>
    <message>
        <source>拖入</source>
        <translation>Drop</translation>
    </message>
    <message>
        <source>与文件比较(&amp;F)...</source>
        <translation>Compare with a &amp;file...</translation>
    </message>
    <message>
        <source>与剪贴板中的文本比较(&amp;T)</source>
        <translation>Compare with the &amp;text of the clipboard</translation>
    </message>
    <message>
        <source>与发送器的存储器比较(&amp;M)</source>
        <translation>Compare with the sender&apos;s &amp;memory</translation>
    </message>
    <message>
        <source>结束比较(&amp;E)</source>
        <translation>&amp;End the comparison</translation>
    </message>
    <message>
        <source>上一处不同(&amp;P)</source>
        <translation>&amp;Previous difference</translation>
    </message>
</context>
<context>
    <name>CEdidSources</name>
    <message>
        <source>%1 不是文件。请选择一个 EDID 文件。</source>
        <translation>%1 is no file. Choose an EDID file.</translation>
    </message>
    <message>
        <source>无法打开 %1：%2。请检查权限。</source>
        <translation>%1 cannot be opened: %2. Check its permissions.</translation>
    </message>
    <message>
        <source>无法读取 %1：%2。</source>
        <translation>%1 cannot be read: %2.</translation>
    </message>
    <message>
        <source>剪贴板中没有文本。请先复制 EDID 的十六进制文本。</source>
        <translation>The clipboard holds no text. Copy the hexadecimal text of an EDID first.</translation>
    </message>
    <message>
        <source>文本不是 EDID：%1。</source>
        <translation>The text is no EDID: %1.</translation>
    </message>
</context>
<context>
    <name>CEdidWords</name>
    <message>
        <source>标头</source>
        <translation>Header</translation>
    </message>
    <message>
        <source>厂商</source>
        <translation>Maker</translation>
    </message>
    <message>
        <source>产品代码</source>
        <translation>Product code</translation>
    </message>
    <message>
        <source>序列号</source>
        <translation>Serial number</translation>
    </message>
    <message>
        <source>周</source>
        <translation>Week</translation>
    </message>
    <message>
        <source>制造年份</source>
        <translation>Year of manufacture</translation>
    </message>
    <message>
        <source>型号年份</source>
        <translation>Model year</translation>
    </message>
    <message>
        <source>版本</source>
        <translation>Version</translation>
    </message>
    <message>
        <source>修订</source>
        <translation>Revision</translation>
    </message>
    <message>
        <source>数字输入</source>
        <translation>Digital input</translation>
    </message>
    <message>
        <source>信号电平</source>
        <translation>Signal levels</translation>
    </message>
    <message>
        <source>消隐到黑的台阶</source>
        <translation>Blank-to-black setup</translation>
    </message>
    <message>
        <source>分离同步</source>
        <translation>Separate sync</translation>
    </message>
    <message>
        <source>复合同步</source>
        <translation>Composite sync</translation>
    </message>
    <message>
        <source>绿色带同步</source>
        <translation>Sync on green</translation>
    </message>
    <message>
        <source>垂直同步带锯齿</source>
        <translation>Serration on vertical sync</translation>
    </message>
    <message>
        <source>兼容 DFP 1.x</source>
        <translation>DFP 1.x compatible</translation>
    </message>
    <message>
        <source>每基色位数</source>
        <translation>Bits per primary</translation>
    </message>
    <message>
        <source>接口</source>
        <translation>Interface</translation>
    </message>
    <message>
        <source>宽度</source>
        <translation>Width</translation>
    </message>
    <message>
        <source>高度</source>
        <translation>Height</translation>
    </message>
    <message>
        <source>宽高比（横向）</source>
        <translation>Aspect ratio, landscape</translation>
    </message>
    <message>
        <source>宽高比（纵向）</source>
        <translation>Aspect ratio, portrait</translation>
    </message>
    <message>
        <source>伽马</source>
        <translation>Gamma</translation>
    </message>
    <message>
        <source>待机</source>
        <translation>Stand-by</translation>
    </message>
    <message>
        <source>挂起</source>
        <translation>Suspend</translation>
    </message>
    <message>
        <source>主动关闭</source>
        <translation>Active off</translation>
    </message>
    <message>
        <source>显示类型</source>
        <translation>Display type</translation>
    </message>
    <message>
        <source>色彩编码</source>
        <translation>Colour encodings</translation>
    </message>
    <message>
        <source>sRGB 是默认色彩空间</source>
        <translation>sRGB is the default colour space</translation>
    </message>
    <message>
        <source>第一个详细时序为首选</source>
        <translation>First detailed timing is preferred</translation>
    </message>
    <message>
        <source>首选时序是原生格式和帧率</source>
        <translation>Preferred timing has the native format and rate</translation>
    </message>
    <message>
        <source>支持 GTF</source>
        <translation>Supports GTF</translation>
    </message>
    <message>
        <source>连续频率</source>
        <translation>Continuous frequency</translation>
    </message>
    <message>
        <source>红 x</source>
        <translation>Red x</translation>
    </message>
    <message>
        <source>红 y</source>
        <translation>Red y</translation>
    </message>
    <message>
        <source>绿 x</source>
        <translation>Green x</translation>
    </message>
    <message>
        <source>绿 y</source>
        <translation>Green y</translation>
    </message>
    <message>
        <source>蓝 x</source>
        <translation>Blue x</translation>
    </message>
    <message>
        <source>蓝 y</source>
        <translation>Blue y</translation>
    </message>
    <message>
        <source>白 x</source>
        <translation>White x</translation>
    </message>
    <message>
        <source>白 y</source>
        <translation>White y</translation>
    </message>
    <message>
        <source>扩展块</source>
        <translation>Extension blocks</translation>
    </message>
    <message>
        <source>校验和</source>
        <translation>Checksum</translation>
    </message>
    <message>
        <source>像素时钟</source>
        <translation>Pixel clock</translation>
    </message>
    <message>
        <source>水平有效</source>
        <translation>Horizontal active</translation>
    </message>
    <message>
        <source>水平消隐</source>
        <translation>Horizontal blanking</translation>
    </message>
    <message>
        <source>垂直有效</source>
        <translation>Vertical active</translation>
    </message>
    <message>
        <source>垂直消隐</source>
        <translation>Vertical blanking</translation>
    </message>
    <message>
        <source>水平前肩</source>
        <translation>Horizontal front porch</translation>
    </message>
    <message>
        <source>水平同步</source>
        <translation>Horizontal sync</translation>
    </message>
    <message>
        <source>垂直前肩</source>
        <translation>Vertical front porch</translation>
    </message>
    <message>
        <source>垂直同步</source>
        <translation>Vertical sync</translation>
    </message>
    <message>
        <source>图像宽度</source>
        <translation>Image width</translation>
    </message>
    <message>
        <source>图像高度</source>
        <translation>Image height</translation>
    </message>
    <message>
        <source>水平边框</source>
        <translation>Horizontal border</translation>
    </message>
    <message>
        <source>垂直边框</source>
        <translation>Vertical border</translation>
    </message>
    <message>
        <source>隔行</source>
        <translation>Interlaced</translation>
    </message>
    <message>
        <source>立体</source>
        <translation>Stereo</translation>
    </message>
    <message>
        <source>同步</source>
        <translation>Sync</translation>
    </message>
    <message>
        <source>垂直同步为正</source>
        <translation>Vertical sync positive</translation>
    </message>
    <message>
        <source>锯齿</source>
        <translation>Serrations</translation>
    </message>
    <message>
        <source>水平同步为正</source>
        <translation>Horizontal sync positive</translation>
    </message>
    <message>
        <source>三条线都带同步</source>
        <translation>Sync on all three lines</translation>
    </message>
    <message>
        <source>垂直频率的偏移</source>
        <translation>Vertical offsets</translation>
    </message>
    <message>
        <source>水平频率的偏移</source>
        <translation>Horizontal offsets</translation>
    </message>
    <message>
        <source>最低垂直频率</source>
        <translation>Lowest vertical rate</translation>
    </message>
    <message>
        <source>最高垂直频率</source>
        <translation>Highest vertical rate</translation>
    </message>
    <message>
        <source>最低水平频率</source>
        <translation>Lowest horizontal rate</translation>
    </message>
    <message>
        <source>最高水平频率</source>
        <translation>Highest horizontal rate</translation>
    </message>
    <message>
        <source>最高像素时钟</source>
        <translation>Highest pixel clock</translation>
    </message>
    <message>
        <source>公式</source>
        <translation>Formula</translation>
    </message>
    <message>
        <source>CVT 版本</source>
        <translation>CVT version</translation>
    </message>
    <message>
        <source>低于最高时钟的量</source>
        <translation>Clock below the highest</translation>
    </message>
    <message>
        <source>最长有效行</source>
        <translation>Longest active line</translation>
    </message>
    <message>
        <source>宽高比 4:3</source>
        <translation>Aspect 4:3</translation>
    </message>
    <message>
        <source>宽高比 16:9</source>
        <translation>Aspect 16:9</translation>
    </message>
    <message>
        <source>宽高比 16:10</source>
        <translation>Aspect 16:10</translation>
    </message>
    <message>
        <source>宽高比 5:4</source>
        <translation>Aspect 5:4</translation>
    </message>
    <message>
        <source>宽高比 15:9</source>
        <translation>Aspect 15:9</translation>
    </message>
    <message>
        <source>首选宽高比</source>
        <translation>Preferred aspect</translation>
    </message>
    <message>
        <source>缩减消隐</source>
        <translation>Reduced blanking</translation>
    </message>
    <message>
        <source>标准消隐</source>
        <translation>Standard blanking</translation>
    </message>
    <message>
        <source>水平缩小</source>
        <translation>Horizontal shrink</translation>
    </message>
    <message>
        <source>水平拉伸</source>
        <translation>Horizontal stretch</translation>
    </message>
    <message>
        <source>垂直缩小</source>
        <translation>Vertical shrink</translation>
    </message>
    <message>
        <source>垂直拉伸</source>
        <translation>Vertical stretch</translation>
    </message>
    <message>
        <source>首选垂直频率</source>
        <translation>Preferred vertical rate</translation>
    </message>
    <message>
        <source>第二曲线的起点</source>
        <translation>Secondary curve starts at</translation>
    </message>
    <message>
        <source>填充</source>
        <translation>Padding</translation>
    </message>
    <message>
        <source>序号</source>
        <translation>Index</translation>
    </message>
    <message>
        <source>红 a3</source>
        <translation>Red a3</translation>
    </message>
    <message>
        <source>红 a2</source>
        <translation>Red a2</translation>
    </message>
    <message>
        <source>绿 a3</source>
        <translation>Green a3</translation>
    </message>
    <message>
        <source>绿 a2</source>
        <translation>Green a2</translation>
    </message>
    <message>
        <source>蓝 a3</source>
        <translation>Blue a3</translation>
    </message>
    <message>
        <source>蓝 a2</source>
        <translation>Blue a2</translation>
    </message>
    <message>
        <source>名称</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>文本</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>厂商和产品</source>
        <translation>Vendor and product</translation>
    </message>
    <message>
        <source>基本参数</source>
        <translation>Basic parameters</translation>
    </message>
    <message>
        <source>色度</source>
        <translation>Chromaticity</translation>
    </message>
    <message>
        <source>覆盖</source>
        <translation>Covers</translation>
    </message>
    <message>
        <source>白点色温</source>
        <translation>Temperature of the white</translation>
    </message>
    <message>
        <source>既定时序</source>
        <translation>Established timings</translation>
    </message>
    <message>
        <source>厂商自定时序</source>
        <translation>Maker&apos;s own timings</translation>
    </message>
    <message>
        <source>标准时序列表</source>
        <translation>Standard timings</translation>
    </message>
    <message>
        <source>标准时序</source>
        <translation>Standard timing</translation>
    </message>
    <message>
        <source>CVT 代码</source>
        <translation>CVT code</translation>
    </message>
    <message>
        <source>白点</source>
        <translation>White point</translation>
    </message>
    <message>
        <source>标记</source>
        <translation>Tag</translation>
    </message>
    <message>
        <source>时序</source>
        <translation>Timing</translation>
    </message>
    <message>
        <source>范围限制</source>
        <translation>Range limits</translation>
    </message>
    <message>
        <source>白点列表</source>
        <translation>White points</translation>
    </message>
    <message>
        <source>更多标准时序</source>
        <translation>More standard timings</translation>
    </message>
    <message>
        <source>色彩管理</source>
        <translation>Colour management</translation>
    </message>
    <message>
        <source>CVT 代码列表</source>
        <translation>CVT codes</translation>
    </message>
    <message>
        <source>既定时序 III</source>
        <translation>Established timings III</translation>
    </message>
    <message>
        <source>未使用的描述符</source>
        <translation>Unused descriptor</translation>
    </message>
    <message>
        <source>厂商自定描述符</source>
        <translation>Maker&apos;s own descriptor</translation>
    </message>
    <message>
        <source>未知描述符</source>
        <translation>Unknown descriptor</translation>
    </message>
    <message>
        <source>行频</source>
        <translation>Line rate</translation>
    </message>
    <message>
        <source>帧率</source>
        <translation>Rate</translation>
    </message>
    <message>
        <source>模式行</source>
        <translation>Modeline</translation>
    </message>
    <message>
        <source>字节</source>
        <translation>Bytes</translation>
    </message>
    <message>
        <source>详细时序</source>
        <translation>Detailed timing</translation>
    </message>
    <message>
        <source>基本块</source>
        <translation>Base block</translation>
    </message>
    <message>
        <source>CTA-861 扩展</source>
        <translation>CTA-861 extension</translation>
    </message>
    <message>
        <source>DisplayID 扩展</source>
        <translation>DisplayID extension</translation>
    </message>
    <message>
        <source>块映射</source>
        <translation>Block map</translation>
    </message>
    <message>
        <source>视频时序扩展</source>
        <translation>Video timing extension</translation>
    </message>
    <message>
        <source>本地化文本扩展</source>
        <translation>Localised text extension</translation>
    </message>
    <message>
        <source>显示信息扩展</source>
        <translation>Display information extension</translation>
    </message>
    <message>
        <source>厂商自定扩展</source>
        <translation>Maker&apos;s own extension</translation>
    </message>
    <message>
        <source>未知扩展</source>
        <translation>Unknown extension</translation>
    </message>
    <message>
        <source>最后一个整块之后的字节</source>
        <translation>Bytes after the last whole block</translation>
    </message>
    <message>
        <source>详细时序开始的字节</source>
        <translation>Detailed timings begin at byte</translation>
    </message>
    <message>
        <source>IT 格式欠扫描</source>
        <translation>Underscans IT formats</translation>
    </message>
    <message>
        <source>基本音频</source>
        <translation>Basic audio</translation>
    </message>
    <message>
        <source>原生详细时序数</source>
        <translation>Native detailed timings</translation>
    </message>
    <message>
        <source>格式</source>
        <translation>Format</translation>
    </message>
    <message>
        <source>扩展格式</source>
        <translation>Extended format</translation>
    </message>
    <message>
        <source>声道</source>
        <translation>Channels</translation>
    </message>
    <message>
        <source>24 位</source>
        <translation>24 bit</translation>
    </message>
    <message>
        <source>20 位</source>
        <translation>20 bit</translation>
    </message>
    <message>
        <source>16 位</source>
        <translation>16 bit</translation>
    </message>
    <message>
        <source>最高码率</source>
        <translation>Highest bit rate</translation>
    </message>
    <message>
        <source>格式自有的值</source>
        <translation>Format&apos;s own value</translation>
    </message>
    <message>
        <source>前左右宽</source>
        <translation>Front left and right wide</translation>
    </message>
    <message>
        <source>后中左右</source>
        <translation>Rear left and right of centre</translation>
    </message>
    <message>
        <source>前中左右</source>
        <translation>Front left and right of centre</translation>
    </message>
    <message>
        <source>后中</source>
        <translation>Back centre</translation>
    </message>
    <message>
        <source>后左右</source>
        <translation>Back left and right</translation>
    </message>
    <message>
        <source>前中</source>
        <translation>Front centre</translation>
    </message>
    <message>
        <source>低频效果</source>
        <translation>Low frequency effects</translation>
    </message>
    <message>
        <source>前左右</source>
        <translation>Front left and right</translation>
    </message>
    <message>
        <source>顶侧左右</source>
        <translation>Top side left and right</translation>
    </message>
    <message>
        <source>侧左右</source>
        <translation>Side left and right</translation>
    </message>
    <message>
        <source>顶后中</source>
        <translation>Top back centre</translation>
    </message>
    <message>
        <source>低频效果 2</source>
        <translation>Low frequency effects 2</translation>
    </message>
    <message>
        <source>左右环绕</source>
        <translation>Left and right surround</translation>
    </message>
    <message>
        <source>顶前中</source>
        <translation>Top front centre</translation>
    </message>
    <message>
        <source>顶中</source>
        <translation>Top centre</translation>
    </message>
    <message>
        <source>顶前左右</source>
        <translation>Top front left and right</translation>
    </message>
    <message>
        <source>顶左右环绕</source>
        <translation>Top left and right surround</translation>
    </message>
    <message>
        <source>底前左右</source>
        <translation>Bottom front left and right</translation>
    </message>
    <message>
        <source>底前中</source>
        <translation>Bottom front centre</translation>
    </message>
    <message>
        <source>顶后左右</source>
        <translation>Top back left and right</translation>
    </message>
    <message>
        <source>可选 YCC 量化</source>
        <translation>Selectable YCC quantisation</translation>
    </message>
    <message>
        <source>可选 RGB 量化</source>
        <translation>Selectable RGB quantisation</translation>
    </message>
    <message>
        <source>首选时序的扫描</source>
        <translation>Preferred timing</translation>
    </message>
    <message>
        <source>IT 格式</source>
        <translation>IT formats</translation>
    </message>
    <message>
        <source>CE 格式</source>
        <translation>CE formats</translation>
    </message>
    <message>
        <source>BT.2020 恒定亮度 YCC</source>
        <translation>BT.2020 constant luminance YCC</translation>
    </message>
    <message>
        <source>色域元数据配置</source>
        <translation>Gamut metadata profiles</translation>
    </message>
    <message>
        <source>混合对数伽马（HLG）</source>
        <translation>Hybrid log-gamma</translation>
    </message>
    <message>
        <source>传统伽马，HDR 范围</source>
        <translation>Traditional gamma, HDR range</translation>
    </message>
    <message>
        <source>传统伽马，SDR 范围</source>
        <translation>Traditional gamma, SDR range</translation>
    </message>
    <message>
        <source>静态元数据类型 1</source>
        <translation>Static metadata type 1</translation>
    </message>
    <message>
        <source>最高亮度代码</source>
        <translation>Highest luminance code</translation>
    </message>
    <message>
        <source>最高帧平均亮度代码</source>
        <translation>Highest frame average luminance code</translation>
    </message>
    <message>
        <source>最低亮度代码</source>
        <translation>Lowest luminance code</translation>
    </message>
    <message>
        <source>物理地址</source>
        <translation>Physical address</translation>
    </message>
    <message>
        <source>接受 ACP 和 ISRC 包</source>
        <translation>Takes ACP and ISRC packets</translation>
    </message>
    <message>
        <source>每像素 48 位</source>
        <translation>48 bits per pixel</translation>
    </message>
    <message>
        <source>每像素 36 位</source>
        <translation>36 bits per pixel</translation>
    </message>
    <message>
        <source>每像素 30 位</source>
        <translation>30 bits per pixel</translation>
    </message>
    <message>
        <source>YCbCr 4:4:4 深色</source>
        <translation>Deep colour in YCbCr 4:4:4</translation>
    </message>
    <message>
        <source>DVI 双链路</source>
        <translation>DVI dual link</translation>
    </message>
    <message>
        <source>最高 TMDS 时钟</source>
        <translation>Highest TMDS clock</translation>
    </message>
    <message>
        <source>给出延迟</source>
        <translation>Latencies are told</translation>
    </message>
    <message>
        <source>给出隔行延迟</source>
        <translation>Interlaced latencies are told</translation>
    </message>
    <message>
        <source>给出 HDMI 视频格式</source>
        <translation>HDMI video formats are told</translation>
    </message>
    <message>
        <source>内容类型：游戏</source>
        <translation>Content type game</translation>
    </message>
    <message>
        <source>内容类型：影院</source>
        <translation>Content type cinema</translation>
    </message>
    <message>
        <source>内容类型：照片</source>
        <translation>Content type photo</translation>
    </message>
    <message>
        <source>内容类型：图形</source>
        <translation>Content type graphics</translation>
    </message>
    <message>
        <source>最高 TMDS 字符率</source>
        <translation>Highest TMDS character rate</translation>
    </message>
    <message>
        <source>状态和控制数据通道（SCDC）</source>
        <translation>Status and control data channel</translation>
    </message>
    <message>
        <source>请求读取 SCDC</source>
        <translation>Requests SCDC reads</translation>
    </message>
    <message>
        <source>线缆状态</source>
        <translation>Cable status</translation>
    </message>
    <message>
        <source>每分量的内容位数</source>
        <translation>Colour content bits per component</translation>
    </message>
    <message>
        <source>340 MHz 及以下加扰</source>
        <translation>Scrambling at 340 MHz and below</translation>
    </message>
    <message>
        <source>3D 独立视图</source>
        <translation>3D independent view</translation>
    </message>
    <message>
        <source>3D 双视图</source>
        <translation>3D dual view</translation>
    </message>
    <message>
        <source>3D OSD 视差</source>
        <translation>3D OSD disparity</translation>
    </message>
    <message>
        <source>固定速率链路</source>
        <translation>Fixed rate link</translation>
    </message>
    <message>
        <source>UHD 视频代码</source>
        <translation>UHD video codes</translation>
    </message>
    <message>
        <source>YCbCr 4:2:0 48 位</source>
        <translation>48 bits in YCbCr 4:2:0</translation>
    </message>
    <message>
        <source>YCbCr 4:2:0 36 位</source>
        <translation>36 bits in YCbCr 4:2:0</translation>
    </message>
    <message>
        <source>YCbCr 4:2:0 30 位</source>
        <translation>30 bits in YCbCr 4:2:0</translation>
    </message>
    <message>
        <source>M 为负的 VRR</source>
        <translation>Negative M VRR</translation>
    </message>
    <message>
        <source>影院 VRR</source>
        <translation>Cinema VRR</translation>
    </message>
    <message>
        <source>负 MVRR</source>
        <translation>Negative MVRR</translation>
    </message>
    <message>
        <source>快速垂直有效（FVA）</source>
        <translation>Fast vertical active</translation>
    </message>
    <message>
        <source>自动低延迟模式</source>
        <translation>Auto low-latency mode</translation>
    </message>
    <message>
        <source>FAPA 在首行之后开始</source>
        <translation>FAPA starts after first line</translation>
    </message>
    <message>
        <source>最低可变帧率</source>
        <translation>Lowest variable rate</translation>
    </message>
    <message>
        <source>最高可变帧率</source>
        <translation>Highest variable rate</translation>
    </message>
    <message>
        <source>组织</source>
        <translation>Organisation</translation>
    </message>
    <message>
        <source>数据块</source>
        <translation>Data block</translation>
    </message>
    <message>
        <source>标记和长度</source>
        <translation>Tag and length</translation>
    </message>
    <message>
        <source>扩展标记</source>
        <translation>Extended tag</translation>
    </message>
    <message>
        <source>音频格式</source>
        <translation>Audio format</translation>
    </message>
    <message>
        <source>视频代码</source>
        <translation>Video code</translation>
    </message>
    <message>
        <source>首选</source>
        <translation>Preferred</translation>
    </message>
    <message>
        <source>HDMI 视频代码</source>
        <translation>HDMI video code</translation>
    </message>
    <message>
        <source>延迟代码</source>
        <translation>Latency code</translation>
    </message>
    <message>
        <source>3D 和图像尺寸</source>
        <translation>3D and image size</translation>
    </message>
    <message>
        <source>列表的长度</source>
        <translation>Lengths of the lists</translation>
    </message>
    <message>
        <source>数据块的字节数</source>
        <translation>Bytes of data blocks</translation>
    </message>
    <message>
        <source>产品类型</source>
        <translation>Product type</translation>
    </message>
    <message>
        <source>后续数据段</source>
        <translation>Sections that follow</translation>
    </message>
    <message>
        <source>长度</source>
        <translation>Length</translation>
    </message>
    <message>
        <source>宽高比</source>
        <translation>Aspect ratio</translation>
    </message>
    <message>
        <source>I 型时序</source>
        <translation>Type I timing</translation>
    </message>
    <message>
        <source>显示时序</source>
        <translation>Display timing</translation>
    </message>
    <message>
        <source>数据段的校验和</source>
        <translation>Checksum of the section</translation>
    </message>
    <message>
        <source>0.700 V，同步 -0.300 V</source>
        <translation>0.700 V, sync -0.300 V</translation>
    </message>
    <message>
        <source>0.714 V，同步 -0.286 V</source>
        <translation>0.714 V, sync -0.286 V</translation>
    </message>
    <message>
        <source>1.000 V，同步 -0.400 V</source>
        <translation>1.000 V, sync -0.400 V</translation>
    </message>
    <message>
        <source>0.700 V，同步 0 V</source>
        <translation>0.700 V, sync 0 V</translation>
    </message>
    <message>
        <source>未定义</source>
        <translation>undefined</translation>
    </message>
    <message>
        <source>单色</source>
        <translation>monochrome</translation>
    </message>
    <message>
        <source>RGB 彩色</source>
        <translation>RGB colour</translation>
    </message>
    <message>
        <source>非 RGB</source>
        <translation>other than RGB</translation>
    </message>
    <message>
        <source>RGB 4:4:4，YCbCr 4:4:4</source>
        <translation>RGB 4:4:4, YCbCr 4:4:4</translation>
    </message>
    <message>
        <source>RGB 4:4:4，YCbCr 4:2:2</source>
        <translation>RGB 4:4:4, YCbCr 4:2:2</translation>
    </message>
    <message>
        <source>RGB 4:4:4，YCbCr 4:4:4，YCbCr 4:2:2</source>
        <translation>RGB 4:4:4, YCbCr 4:4:4, YCbCr 4:2:2</translation>
    </message>
    <message>
        <source>无</source>
        <translation>none</translation>
    </message>
    <message>
        <source>场序，同步时为右</source>
        <translation>field sequential, right on sync</translation>
    </message>
    <message>
        <source>双路交错，偶数行为右</source>
        <translation>two-way interleaved, right on even lines</translation>
    </message>
    <message>
        <source>场序，同步时为左</source>
        <translation>field sequential, left on sync</translation>
    </message>
    <message>
        <source>双路交错，偶数行为左</source>
        <translation>two-way interleaved, left on even lines</translation>
    </message>
    <message>
        <source>四路交错</source>
        <translation>four-way interleaved</translation>
    </message>
    <message>
        <source>并排</source>
        <translation>side by side</translation>
    </message>
    <message>
        <source>模拟复合</source>
        <translation>analog composite</translation>
    </message>
    <message>
        <source>双极模拟复合</source>
        <translation>bipolar analog composite</translation>
    </message>
    <message>
        <source>数字复合</source>
        <translation>digital composite</translation>
    </message>
    <message>
        <source>数字分离</source>
        <translation>digital separate</translation>
    </message>
    <message>
        <source>保留</source>
        <translation>reserved</translation>
    </message>
    <message>
        <source>最高值 +255</source>
        <translation>maximum +255</translation>
    </message>
    <message>
        <source>最高和最低值 +255</source>
        <translation>maximum and minimum +255</translation>
    </message>
    <message>
        <source>默认 GTF，或没有</source>
        <translation>default GTF, or none</translation>
    </message>
    <message>
        <source>只有范围限制</source>
        <translation>range limits only</translation>
    </message>
    <message>
        <source>第二 GTF 曲线</source>
        <translation>secondary GTF</translation>
    </message>
    <message>
        <source>线性 PCM</source>
        <translation>Linear PCM</translation>
    </message>
    <message>
        <source>扩展</source>
        <translation>extended</translation>
    </message>
    <message>
        <source>无数据</source>
        <translation>no data</translation>
    </message>
    <message>
        <source>总是过扫描</source>
        <translation>always overscanned</translation>
    </message>
    <message>
        <source>总是欠扫描</source>
        <translation>always underscanned</translation>
    </message>
    <message>
        <source>两者</source>
        <translation>both</translation>
    </message>
    <message>
        <source>3 通道 3 Gbit/s</source>
        <translation>3 Gbit/s on 3 lanes</translation>
    </message>
    <message>
        <source>3 通道 3 和 6 Gbit/s</source>
        <translation>3 and 6 Gbit/s on 3 lanes</translation>
    </message>
    <message>
        <source>4 通道最高 6 Gbit/s</source>
        <translation>up to 6 Gbit/s on 4 lanes</translation>
    </message>
    <message>
        <source>4 通道最高 8 Gbit/s</source>
        <translation>up to 8 Gbit/s on 4 lanes</translation>
    </message>
    <message>
        <source>4 通道最高 10 Gbit/s</source>
        <translation>up to 10 Gbit/s on 4 lanes</translation>
    </message>
    <message>
        <source>4 通道最高 12 Gbit/s</source>
        <translation>up to 12 Gbit/s on 4 lanes</translation>
    </message>
    <message>
        <source>保留的数据块</source>
        <translation>Reserved data block</translation>
    </message>
    <message>
        <source>音频数据块</source>
        <translation>Audio data block</translation>
    </message>
    <message>
        <source>视频数据块</source>
        <translation>Video data block</translation>
    </message>
    <message>
        <source>厂商数据块</source>
        <translation>Vendor data block</translation>
    </message>
    <message>
        <source>扬声器分配数据块</source>
        <translation>Speaker allocation data block</translation>
    </message>
    <message>
        <source>VESA 显示传输特性数据块</source>
        <translation>VESA display transfer characteristics data block</translation>
    </message>
    <message>
        <source>视频格式数据块</source>
        <translation>Video format data block</translation>
    </message>
    <message>
        <source>视频能力数据块</source>
        <translation>Video capability data block</translation>
    </message>
    <message>
        <source>厂商视频数据块</source>
        <translation>Vendor video data block</translation>
    </message>
    <message>
        <source>VESA 显示设备数据块</source>
        <translation>VESA display device data block</translation>
    </message>
    <message>
        <source>VESA 视频时序块扩展</source>
        <translation>VESA video timing block extension</translation>
    </message>
    <message>
        <source>HDMI 视频数据块</source>
        <translation>HDMI video data block</translation>
    </message>
    <message>
        <source>色度学数据块</source>
        <translation>Colorimetry data block</translation>
    </message>
    <message>
        <source>HDR 静态元数据块</source>
        <translation>HDR static metadata data block</translation>
    </message>
    <message>
        <source>HDR 动态元数据块</source>
        <translation>HDR dynamic metadata data block</translation>
    </message>
    <message>
        <source>原生视频分辨率数据块</source>
        <translation>Native video resolution data block</translation>
    </message>
    <message>
        <source>视频格式偏好数据块</source>
        <translation>Video format preference data block</translation>
    </message>
    <message>
        <source>YCbCr 4:2:0 视频数据块</source>
        <translation>YCbCr 4:2:0 video data block</translation>
    </message>
    <message>
        <source>YCbCr 4:2:0 能力映射数据块</source>
        <translation>YCbCr 4:2:0 capability map data block</translation>
    </message>
    <message>
        <source>其他音频数据块</source>
        <translation>Miscellaneous audio data block</translation>
    </message>
    <message>
        <source>厂商音频数据块</source>
        <translation>Vendor audio data block</translation>
    </message>
    <message>
        <source>HDMI 音频数据块</source>
        <translation>HDMI audio data block</translation>
    </message>
    <message>
        <source>房间配置数据块</source>
        <translation>Room configuration data block</translation>
    </message>
    <message>
        <source>扬声器位置数据块</source>
        <translation>Speaker location data block</translation>
    </message>
    <message>
        <source>InfoFrame 数据块</source>
        <translation>InfoFrame data block</translation>
    </message>
    <message>
        <source>DisplayID VII 型时序数据块</source>
        <translation>DisplayID type VII timing data block</translation>
    </message>
    <message>
        <source>DisplayID VIII 型时序数据块</source>
        <translation>DisplayID type VIII timing data block</translation>
    </message>
    <message>
        <source>DisplayID X 型时序数据块</source>
        <translation>DisplayID type X timing data block</translation>
    </message>
    <message>
        <source>HDMI Forum EDID 扩展覆盖数据块</source>
        <translation>HDMI Forum EDID extension override data block</translation>
    </message>
    <message>
        <source>HDMI Forum 接收端能力数据块</source>
        <translation>HDMI Forum sink capability data block</translation>
    </message>
    <message>
        <source>扩展数据块</source>
        <translation>Extended data block</translation>
    </message>
    <message>
        <source>另一数据段的扩展</source>
        <translation>extension of another section</translation>
    </message>
    <message>
        <source>测试结构</source>
        <translation>test structure</translation>
    </message>
    <message>
        <source>显示面板</source>
        <translation>display panel</translation>
    </message>
    <message>
        <source>独立显示设备</source>
        <translation>standalone display device</translation>
    </message>
    <message>
        <source>电视接收机</source>
        <translation>television receiver</translation>
    </message>
    <message>
        <source>中继器或转换器</source>
        <translation>repeater or translator</translation>
    </message>
    <message>
        <source>直接驱动显示器</source>
        <translation>direct drive monitor</translation>
    </message>
    <message>
        <source>单视</source>
        <translation>mono</translation>
    </message>
    <message>
        <source>立体显示</source>
        <translation>stereo</translation>
    </message>
    <message>
        <source>由操作者选择</source>
        <translation>as the operator chooses</translation>
    </message>
    <message>
        <source>产品标识</source>
        <translation>Product identification</translation>
    </message>
    <message>
        <source>显示参数</source>
        <translation>Display parameters</translation>
    </message>
    <message>
        <source>色彩特性</source>
        <translation>Colour characteristics</translation>
    </message>
    <message>
        <source>I 型时序，详细</source>
        <translation>Type I timings, detailed</translation>
    </message>
    <message>
        <source>II 型时序，详细</source>
        <translation>Type II timings, detailed</translation>
    </message>
    <message>
        <source>III 型时序，简短</source>
        <translation>Type III timings, short</translation>
    </message>
    <message>
        <source>IV 型时序，DMT 编号</source>
        <translation>Type IV timings, DMT numbers</translation>
    </message>
    <message>
        <source>VESA 时序标准</source>
        <translation>VESA timing standard</translation>
    </message>
    <message>
        <source>CTA 时序标准</source>
        <translation>CTA timing standard</translation>
    </message>
    <message>
        <source>视频时序范围限制</source>
        <translation>Video timing range limits</translation>
    </message>
    <message>
        <source>产品序列号</source>
        <translation>Product serial number</translation>
    </message>
    <message>
        <source>显示设备数据</source>
        <translation>Display device data</translation>
    </message>
    <message>
        <source>接口上电顺序</source>
        <translation>Interface power sequencing</translation>
    </message>
    <message>
        <source>传输特性</source>
        <translation>Transfer characteristics</translation>
    </message>
    <message>
        <source>显示接口</source>
        <translation>Display interface</translation>
    </message>
    <message>
        <source>立体显示接口</source>
        <translation>Stereo display interface</translation>
    </message>
    <message>
        <source>V 型时序，简短</source>
        <translation>Type V timings, short</translation>
    </message>
    <message>
        <source>拼接显示拓扑</source>
        <translation>Tiled display topology</translation>
    </message>
    <message>
        <source>VI 型时序，详细</source>
        <translation>Type VI timings, detailed</translation>
    </message>
    <message>
        <source>产品标识（2.0）</source>
        <translation>Product identification (2.0)</translation>
    </message>
    <message>
        <source>显示参数（2.0）</source>
        <translation>Display parameters (2.0)</translation>
    </message>
    <message>
        <source>VII 型时序，详细</source>
        <translation>Type VII timings, detailed</translation>
    </message>
    <message>
        <source>VIII 型时序，列举</source>
        <translation>Type VIII timings, enumerated</translation>
    </message>
    <message>
        <source>IX 型时序，公式</source>
        <translation>Type IX timings, formula</translation>
    </message>
    <message>
        <source>动态视频时序范围</source>
        <translation>Dynamic video timing range</translation>
    </message>
    <message>
        <source>显示接口特性</source>
        <translation>Display interface features</translation>
    </message>
    <message>
        <source>立体显示接口（2.0）</source>
        <translation>Stereo display interface (2.0)</translation>
    </message>
    <message>
        <source>拼接显示拓扑（2.0）</source>
        <translation>Tiled display topology (2.0)</translation>
    </message>
    <message>
        <source>容器 ID</source>
        <translation>Container ID</translation>
    </message>
    <message>
        <source>X 型时序，公式</source>
        <translation>Type X timings, formula</translation>
    </message>
    <message>
        <source>自适应同步</source>
        <translation>Adaptive sync</translation>
    </message>
    <message>
        <source>厂商数据（2.0）</source>
        <translation>Vendor data (2.0)</translation>
    </message>
    <message>
        <source>厂商数据</source>
        <translation>Vendor data</translation>
    </message>
    <message>
        <source>CTA DisplayID 数据</source>
        <translation>CTA DisplayID data</translation>
    </message>
    <message>
        <source>像素</source>
        <translation>pixels</translation>
    </message>
    <message>
        <source>行</source>
        <translation>lines</translation>
    </message>
    <message>
        <source>个字节</source>
        <translation>bytes</translation>
    </message>
    <message>
        <source>错误，应为 </source>
        <translation>wrong, should be </translation>
    </message>
    <message>
        <source>正确</source>
        <translation>right</translation>
    </message>
    <message>
        <source>未给出</source>
        <translation>not given</translation>
    </message>
    <message>
        <source>表示型号年份</source>
        <translation>model year</translation>
    </message>
    <message>
        <source>在别处定义</source>
        <translation>defined elsewhere</translation>
    </message>
    <message>
        <source>未使用</source>
        <translation>unused</translation>
    </message>
    <message>
        <source>，未知</source>
        <translation>, unknown</translation>
    </message>
    <message>
        <source>，原生</source>
        <translation>, native</translation>
    </message>
    <message>
        <source>没有帧率</source>
        <translation>no rate</translation>
    </message>
    <message>
        <source> 首选</source>
        <translation> preferred</translation>
    </message>
    <message>
        <source> 缩减</source>
        <translation> reduced</translation>
    </message>
    <message>
        <source>不在 4000 到 25000 K 之间</source>
        <translation>not from 4000 to 25000 K</translation>
    </message>
    <message>
        <source> @ </source>
        <translation> at </translation>
    </message>
    <message>
        <source>是</source>
        <translation>yes</translation>
    </message>
    <message>
        <source>否</source>
        <translation>no</translation>
    </message>
    <message>
        <source>保留 (%1)</source>
        <translation>reserved (%1)</translation>
    </message>
    <message>
        <source>描述符 %1：%2</source>
        <translation>Descriptor %1: %2</translation>
    </message>
    <message>
        <source>动态元数据</source>
        <translation>Dynamic metadata</translation>
    </message>
    <message>
        <source>元数据类型</source>
        <translation>Metadata type</translation>
    </message>
    <message>
        <source>三维声音的音频格式</source>
        <translation>Audio format with 3D sound</translation>
    </message>
    <message>
        <source>同时的音频流</source>
        <translation>Audio streams at once</translation>
    </message>
    <message>
        <source>不混合的音频流</source>
        <translation>Streams that are not mixed</translation>
    </message>
    <message>
        <source>三维声音的音频格式数</source>
        <translation>Audio formats with 3D sound</translation>
    </message>
    <message>
        <source>给出显示器的位置</source>
        <translation>Place of the display is told</translation>
    </message>
    <message>
        <source>给出扬声器的数目</source>
        <translation>Number of speakers is told</translation>
    </message>
    <message>
        <source>给出房间的尺寸</source>
        <translation>Size of the room is told</translation>
    </message>
    <message>
        <source>扬声器数</source>
        <translation>Speakers</translation>
    </message>
    <message>
        <source>房间的半宽</source>
        <translation>Half width of the room</translation>
    </message>
    <message>
        <source>房间的半深</source>
        <translation>Half depth of the room</translation>
    </message>
    <message>
        <source>房间的半高</source>
        <translation>Half height of the room</translation>
    </message>
    <message>
        <source>显示器的位置 x</source>
        <translation>Place of the display, x</translation>
    </message>
    <message>
        <source>显示器的位置 y</source>
        <translation>Place of the display, y</translation>
    </message>
    <message>
        <source>显示器的位置 z</source>
        <translation>Place of the display, z</translation>
    </message>
    <message>
        <source>给出位置</source>
        <translation>Place is told</translation>
    </message>
    <message>
        <source>使用中</source>
        <translation>In use</translation>
    </message>
    <message>
        <source>声道号</source>
        <translation>Channel</translation>
    </message>
    <message>
        <source>扬声器</source>
        <translation>Speaker</translation>
    </message>
    <message>
        <source>位置 x</source>
        <translation>Place, x</translation>
    </message>
    <message>
        <source>位置 y</source>
        <translation>Place, y</translation>
    </message>
    <message>
        <source>位置 z</source>
        <translation>Place, z</translation>
    </message>
    <message>
        <source>VII 型时序</source>
        <translation>Type VII timing</translation>
    </message>
    <message>
        <source>名称的长度</source>
        <translation>Length of the name</translation>
    </message>
    <message>
        <source>原生宽度</source>
        <translation>Native width</translation>
    </message>
    <message>
        <source>原生高度</source>
        <translation>Native height</translation>
    </message>
    <message>
        <source>视频接口带音频</source>
        <translation>Audio on the video interface</translation>
    </message>
    <message>
        <source>单独的音频输入</source>
        <translation>Separate audio inputs</translation>
    </message>
    <message>
        <source>音频输入优先</source>
        <translation>Audio input override</translation>
    </message>
    <message>
        <source>电源管理</source>
        <translation>Power management</translation>
    </message>
    <message>
        <source>固定时序</source>
        <translation>Fixed timing</translation>
    </message>
    <message>
        <source>固定像素格式</source>
        <translation>Fixed pixel format</translation>
    </message>
    <message>
        <source>去隔行</source>
        <translation>Removes interlacing</translation>
    </message>
    <message>
        <source>每色位数（总）</source>
        <translation>Bits per colour, overall</translation>
    </message>
    <message>
        <source>每色位数（原生）</source>
        <translation>Bits per colour, native</translation>
    </message>
    <message>
        <source>同一外壳</source>
        <translation>One enclosure</translation>
    </message>
    <message>
        <source>给出边框宽度</source>
        <translation>Bezels are told</translation>
    </message>
    <message>
        <source>只有部分拼接屏有图像时</source>
        <translation>When only some tiles get a picture</translation>
    </message>
    <message>
        <source>只有一个拼接屏有图像时</source>
        <translation>When one tile alone gets a picture</translation>
    </message>
    <message>
        <source>每行拼接屏数</source>
        <translation>Tiles in a row</translation>
    </message>
    <message>
        <source>每列拼接屏数</source>
        <translation>Tiles in a column</translation>
    </message>
    <message>
        <source>在行中的位置</source>
        <translation>Place in the row</translation>
    </message>
    <message>
        <source>在列中的位置</source>
        <translation>Place in the column</translation>
    </message>
    <message>
        <source>拼接屏宽度</source>
        <translation>Width of a tile</translation>
    </message>
    <message>
        <source>拼接屏高度</source>
        <translation>Height of a tile</translation>
    </message>
    <message>
        <source>边框的乘数</source>
        <translation>Multiplier of the bezels</translation>
    </message>
    <message>
        <source>上边框，乘以乘数</source>
        <translation>Top bezel, times the multiplier</translation>
    </message>
    <message>
        <source>下边框，乘以乘数</source>
        <translation>Bottom bezel, times the multiplier</translation>
    </message>
    <message>
        <source>右边框，乘以乘数</source>
        <translation>Right bezel, times the multiplier</translation>
    </message>
    <message>
        <source>左边框，乘以乘数</source>
        <translation>Left bezel, times the multiplier</translation>
    </message>
    <message>
        <source>图像在其拼接屏的位置</source>
        <translation>image at the place of its tile</translation>
    </message>
    <message>
        <source>图像铺满全部拼接屏</source>
        <translation>image over all tiles</translation>
    </message>
    <message>
        <source>图像在每个拼接屏上</source>
        <translation>image on every tile</translation>
    </message>
    <message>
        <source>前左</source>
        <translation>front left</translation>
    </message>
    <message>
        <source>前右</source>
        <translation>front right</translation>
    </message>
    <message>
        <source>前置中央</source>
        <translation>front centre</translation>
    </message>
    <message>
        <source>低频效果 1</source>
        <translation>low frequency effects 1</translation>
    </message>
    <message>
        <source>后左</source>
        <translation>back left</translation>
    </message>
    <message>
        <source>后右</source>
        <translation>back right</translation>
    </message>
    <message>
        <source>前中偏左</source>
        <translation>front left of centre</translation>
    </message>
    <message>
        <source>前中偏右</source>
        <translation>front right of centre</translation>
    </message>
    <message>
        <source>后置中央</source>
        <translation>back centre</translation>
    </message>
    <message>
        <source>低频声道 2</source>
        <translation>low frequency effects 2</translation>
    </message>
    <message>
        <source>侧左</source>
        <translation>side left</translation>
    </message>
    <message>
        <source>侧右</source>
        <translation>side right</translation>
    </message>
    <message>
        <source>顶前左</source>
        <translation>top front left</translation>
    </message>
    <message>
        <source>顶前右</source>
        <translation>top front right</translation>
    </message>
    <message>
        <source>顶前中央</source>
        <translation>top front centre</translation>
    </message>
    <message>
        <source>顶部中央</source>
        <translation>top centre</translation>
    </message>
    <message>
        <source>顶后左</source>
        <translation>top back left</translation>
    </message>
    <message>
        <source>顶后右</source>
        <translation>top back right</translation>
    </message>
    <message>
        <source>顶侧左</source>
        <translation>top side left</translation>
    </message>
    <message>
        <source>顶侧右</source>
        <translation>top side right</translation>
    </message>
    <message>
        <source>顶后中央</source>
        <translation>top back centre</translation>
    </message>
    <message>
        <source>底前中央</source>
        <translation>bottom front centre</translation>
    </message>
    <message>
        <source>底前左</source>
        <translation>bottom front left</translation>
    </message>
    <message>
        <source>底前右</source>
        <translation>bottom front right</translation>
    </message>
    <message>
        <source>前左宽</source>
        <translation>front left wide</translation>
    </message>
    <message>
        <source>前右宽</source>
        <translation>front right wide</translation>
    </message>
    <message>
        <source>左环绕</source>
        <translation>left surround</translation>
    </message>
    <message>
        <source>右环绕</source>
        <translation>right surround</translation>
    </message>
    <message>
        <source>详细时序 </source>
        <translation>detailed timing </translation>
    </message>
    <message>
        <source>VII 型时序 </source>
        <translation>type VII timing </translation>
    </message>
    <message>
        <source>VIII 型时序 </source>
        <translation>type VIII timing </translation>
    </message>
    <message>
        <source>保留值</source>
        <translation>reserved</translation>
    </message>
</context>
<context>
    <name>CFieldModel</name>
    <message>
        <source>只在另一个中</source>
        <translation>Only in the other</translation>
    </message>
    <message>
        <source>没有</source>
        <translation>none</translation>
    </message>
    <message>
        <source>字段</source>
        <translation>Field</translation>
    </message>
    <message>
        <source>值</source>
        <translation>Value</translation>
    </message>
    <message>
        <source>另一个的值</source>
        <translation>Value in the other</translation>
    </message>
</context>
<context>
    <name>CFindingList</name>
    <message>
        <source>错误</source>
        <translation>Error</translation>
    </message>
    <message>
        <source>警告</source>
        <translation>Warning</translation>
    </message>
    <message>
        <source>级别</source>
        <translation>Severity</translation>
    </message>
    <message>
        <source>字节</source>
        <translation>Byte</translation>
    </message>
    <message>
        <source>问题</source>
        <translation>Problem</translation>
    </message>
    <message>
        <source>处理方法</source>
        <translation>What to do</translation>
    </message>
    <message>
        <source>EDID 检查结果</source>
        <translation>Findings about the EDID</translation>
    </message>
</context>
<context>
    <name>CFindingText</name>
    <message>
        <source>块不以 00 FF FF FF FF FF FF 00 开头</source>
        <translation>The block does not begin with 00 FF FF FF FF FF FF 00</translation>
    </message>
    <message>
        <source>写入标头；“全部修复”可完成</source>
        <translation>Write the header; &quot;Fix all&quot; does it</translation>
    </message>
    <message>
        <source>厂商编号不代表三个字母</source>
        <translation>The maker&apos;s number does not stand for three letters</translation>
    </message>
    <message>
        <source>给出由 A 到 Z 的三个字母组成的厂商</source>
        <translation>Give a maker of three letters A to Z</translation>
    </message>
    <message>
        <source>没有第 %1 周</source>
        <translation>There is no week %1</translation>
    </message>
    <message>
        <source>给出 1 到 53 的周，或用 0 表示没有</source>
        <translation>Give a week from 1 to 53, or 0 for none</translation>
    </message>
    <message>
        <source>第 54 周需要 EDID 1.4</source>
        <translation>Week 54 needs EDID 1.4</translation>
    </message>
    <message>
        <source>型号年份的标记需要 EDID 1.4</source>
        <translation>The mark of a model year needs EDID 1.4</translation>
    </message>
    <message>
        <source>给出周，或用 0 表示没有</source>
        <translation>Give a week, or 0 for none</translation>
    </message>
    <message>
        <source>年份 %1 在未来</source>
        <translation>The year %1 lies in the future</translation>
    </message>
    <message>
        <source>给出显示器的制造年份</source>
        <translation>Give the year in which the display was made</translation>
    </message>
    <message>
        <source>版本是 %1，而不是 1</source>
        <translation>The version is %1 and not 1</translation>
    </message>
    <message>
        <source>写入版本 1</source>
        <translation>Write version 1</translation>
    </message>
    <message>
        <source>颜色深度是保留值</source>
        <translation>The colour depth has a reserved value</translation>
    </message>
    <message>
        <source>给出 6 到 16 位的深度，或用 0 表示未定义</source>
        <translation>Give a depth of 6 to 16 bits, or 0 for undefined</translation>
    </message>
    <message>
        <source>接口是保留值 %1</source>
        <translation>The interface has the reserved value %1</translation>
    </message>
    <message>
        <source>清除视频输入的保留位</source>
        <translation>Clear the reserved bits of the video input</translation>
    </message>
    <message>
        <source>EDID 1.3 要求第一个详细时序是首选时序</source>
        <translation>EDID 1.3 requires that the first detailed timing is the preferred one</translation>
    </message>
    <message>
        <source>设置特性的第 1 位</source>
        <translation>Set bit 1 of the features</translation>
    </message>
    <message>
        <source>sRGB 是默认色彩空间，但色度坐标不同</source>
        <translation>SRGB is the default colour space, but the chromaticities are others</translation>
    </message>
    <message>
        <source>清除特性的第 2 位，或给出 sRGB 的基色</source>
        <translation>Clear bit 2 of the features, or give the primaries of sRGB</translation>
    </message>
    <message>
        <source>未使用的标准时序写成了 %1，而不是 01 01</source>
        <translation>An unused standard timing is written as %1 and not as 01 01</translation>
    </message>
    <message>
        <source>写入 01 01</source>
        <translation>Write 01 01</translation>
    </message>
    <message>
        <source>第一个描述符不是详细时序</source>
        <translation>The first descriptor is no detailed timing</translation>
    </message>
    <message>
        <source>把首选时序放在第一个描述符</source>
        <translation>Put the preferred timing into the first descriptor</translation>
    </message>
    <message>
        <source>EDID 1.0 没有显示描述符</source>
        <translation>EDID 1.0 has no display descriptors</translation>
    </message>
    <message>
        <source>写入修订 3 或 4</source>
        <translation>Write revision 3 or 4</translation>
    </message>
    <message>
        <source>显示描述符的字节 %1 是 %2，而不是 0</source>
        <translation>Byte %1 of a display descriptor is %2 and not 0</translation>
    </message>
    <message>
        <source>写入 0</source>
        <translation>Write 0</translation>
    </message>
    <message>
        <source>描述符的标记 %1 是保留的</source>
        <translation>The descriptor&apos;s tag %1 is reserved</translation>
    </message>
    <message>
        <source>使用标准中的标记，未使用的描述符用 10</source>
        <translation>Use a tag of the standard, or 10 for an unused descriptor</translation>
    </message>
    <message>
        <source>详细时序排在显示描述符之后</source>
        <translation>A detailed timing stands behind a display descriptor</translation>
    </message>
    <message>
        <source>把详细时序放在前面</source>
        <translation>Put the detailed timings first</translation>
    </message>
    <message>
        <source>像素时钟低于 10 MHz</source>
        <translation>The pixel clock is below 10 MHz</translation>
    </message>
    <message>
        <source>给出时序的时钟</source>
        <translation>Give the clock of the timing</translation>
    </message>
    <message>
        <source>时序的某一部分为 0</source>
        <translation>A part of the timing is 0</translation>
    </message>
    <message>
        <source>给出两个方向的有效尺寸、消隐、前沿和同步</source>
        <translation>Give active size, blanking, front porch and sync of both directions</translation>
    </message>
    <message>
        <source>水平后沿没有剩余</source>
        <translation>Nothing is left for the horizontal back porch</translation>
    </message>
    <message>
        <source>使水平消隐长于前沿、同步和边框之和</source>
        <translation>Make the horizontal blanking longer than front porch, sync and borders</translation>
    </message>
    <message>
        <source>垂直后沿没有剩余</source>
        <translation>Nothing is left for the vertical back porch</translation>
    </message>
    <message>
        <source>使垂直消隐长于前沿、同步和边框之和</source>
        <translation>Make the vertical blanking longer than front porch, sync and borders</translation>
    </message>
    <message>
        <source>时序没有给出图像尺寸，但显示器有尺寸</source>
        <translation>The timing gives no image size, but the display has one</translation>
    </message>
    <message>
        <source>以毫米给出图像尺寸</source>
        <translation>Give the image size in millimetres</translation>
    </message>
    <message>
        <source>时序的图像尺寸与显示器的尺寸不同</source>
        <translation>The image size of the timing is not that of the display</translation>
    </message>
    <message>
        <source>在两处给出相同的尺寸</source>
        <translation>Give the same size in both places</translation>
    </message>
    <message>
        <source>时序给出了图像尺寸，但显示器没有尺寸</source>
        <translation>A timing gives an image size, but the display has none</translation>
    </message>
    <message>
        <source>以厘米给出显示器的尺寸</source>
        <translation>Give the size of the display in centimetres</translation>
    </message>
    <message>
        <source>时序有边框</source>
        <translation>The timing has borders</translation>
    </message>
    <message>
        <source>两个边框都写 0</source>
        <translation>Write 0 for both borders</translation>
    </message>
    <message>
        <source>文本为空</source>
        <translation>The text is empty</translation>
    </message>
    <message>
        <source>写入文本，或改为未使用的描述符</source>
        <translation>Write a text, or make the descriptor an unused one</translation>
    </message>
    <message>
        <source>文本含有字节 %1，它不是可打印字符</source>
        <translation>The text holds the byte %1, which is no printable character</translation>
    </message>
    <message>
        <source>使用可打印的 ASCII 字符</source>
        <translation>Use printable ASCII characters</translation>
    </message>
    <message>
        <source>文本以空格结尾</source>
        <translation>The text ends in blanks</translation>
    </message>
    <message>
        <source>用 0A 结束文本，其后填空格</source>
        <translation>End the text with 0A; blanks follow behind it</translation>
    </message>
    <message>
        <source>文本结束之后不全是空格</source>
        <translation>What follows the end of the text is not all blanks</translation>
    </message>
    <message>
        <source>在 0A 之后用 20 填满描述符</source>
        <translation>Fill the descriptor with 20 behind the 0A</translation>
    </message>
    <message>
        <source>块中没有显示器名称</source>
        <translation>The block has no name of the display</translation>
    </message>
    <message>
        <source>添加一个名称描述符</source>
        <translation>Add a descriptor with the name</translation>
    </message>
    <message>
        <source>未使用的描述符不全为零</source>
        <translation>An unused descriptor is not all zeros</translation>
    </message>
    <message>
        <source>写入零</source>
        <translation>Write zeros</translation>
    </message>
    <message>
        <source>既定时序 III 需要 EDID 1.4</source>
        <translation>Established timings III need EDID 1.4</translation>
    </message>
    <message>
        <source>写入修订 4，或删除该描述符</source>
        <translation>Write revision 4, or remove the descriptor</translation>
    </message>
    <message>
        <source>CVT 代码需要 EDID 1.4</source>
        <translation>CVT codes need EDID 1.4</translation>
    </message>
    <message>
        <source>CVT 代码的版本是 %1，而不是 1</source>
        <translation>The version of the CVT codes is %1 and not 1</translation>
    </message>
    <message>
        <source>写入 1</source>
        <translation>Write 1</translation>
    </message>
    <message>
        <source>CVT 代码含有保留值</source>
        <translation>A CVT code has a reserved value</translation>
    </message>
    <message>
        <source>清除保留位，并给出行数</source>
        <translation>Clear the reserved bits, and give a number of lines</translation>
    </message>
    <message>
        <source>CVT 代码不支持任何帧率</source>
        <translation>A CVT code supports no rate</translation>
    </message>
    <message>
        <source>设置五个帧率之一</source>
        <translation>Set one of the five rates</translation>
    </message>
    <message>
        <source>CVT 代码的首选帧率不受支持</source>
        <translation>The preferred rate of a CVT code is not supported</translation>
    </message>
    <message>
        <source>选择受支持的帧率</source>
        <translation>Prefer a rate that is supported</translation>
    </message>
    <message>
        <source>块中没有范围限制</source>
        <translation>The block has no range limits</translation>
    </message>
    <message>
        <source>添加一个范围限制描述符</source>
        <translation>Add a descriptor with the range limits</translation>
    </message>
    <message>
        <source>最低垂直频率高于最高垂直频率</source>
        <translation>The lowest vertical rate is above the highest</translation>
    </message>
    <message>
        <source>先写较低的频率</source>
        <translation>Give the lower rate first</translation>
    </message>
    <message>
        <source>最低水平频率高于最高水平频率</source>
        <translation>The lowest horizontal rate is above the highest</translation>
    </message>
    <message>
        <source>EDID 1.4 的范围限制没有给出最高时钟</source>
        <translation>The range limits of EDID 1.4 give no highest clock</translation>
    </message>
    <message>
        <source>以 10 MHz 为单位给出最高时钟</source>
        <translation>Give the highest clock in steps of 10 MHz</translation>
    </message>
    <message>
        <source>公式 %1 是保留的</source>
        <translation>The formula %1 is reserved</translation>
    </message>
    <message>
        <source>EDID 1.4 中用 1 表示没有公式，更早用 0</source>
        <translation>Use 1 for no formula in EDID 1.4, 0 before</translation>
    </message>
    <message>
        <source>公式 %1 需要 EDID 1.4</source>
        <translation>The formula %1 needs EDID 1.4</translation>
    </message>
    <message>
        <source>写入 0，或修订 4</source>
        <translation>Write 0, or revision 4</translation>
    </message>
    <message>
        <source>公式要求显示器频率连续</source>
        <translation>A formula needs a display of continuous frequency</translation>
    </message>
    <message>
        <source>写入 1 表示只有范围限制，或设置特性的第 0 位</source>
        <translation>Write 1 for range limits alone, or set bit 0 of the features</translation>
    </message>
    <message>
        <source>范围限制的末尾不是公式要求的字节</source>
        <translation>The range limits end in other bytes than the formula asks for</translation>
    </message>
    <message>
        <source>写入 0A 和六个 20，第二曲线的数值之前写 00</source>
        <translation>Write 0A and six times 20, or 00 before the numbers of a secondary curve</translation>
    </message>
    <message>
        <source>CVT 限制的保留位被设置</source>
        <translation>Reserved bits of the CVT limits are set</translation>
    </message>
    <message>
        <source>清除字节 14 和 15 的第 2 到 0 位，以及字节 16 的第 3 到 0 位</source>
        <translation>Clear bits 2 to 0 of bytes 14 and 15, and bits 3 to 0 of byte 16</translation>
    </message>
    <message>
        <source>块中有一个时序超出范围限制</source>
        <translation>A timing of the block lies outside the range limits</translation>
    </message>
    <message>
        <source>放宽限制</source>
        <translation>Widen the limits; &apos;auto&apos; finds them</translation>
    </message>
    <message>
        <source>块中有一个模式超出范围限制</source>
        <translation>A timing of the block lies outside the range limits</translation>
    </message>
    <message>
        <source>放宽限制，或去掉该模式</source>
        <translation>Widen the limits; &apos;auto&apos; finds them</translation>
    </message>
    <message>
        <source>块声明有 %1 个扩展块，实际有 %2 个</source>
        <translation>The block announces %1 extension blocks, but there are %2</translation>
    </message>
    <message>
        <source>写入扩展块的数目；“全部修复”可完成</source>
        <translation>Write the number of blocks; &quot;Fix all&quot; does it</translation>
    </message>
    <message>
        <source>校验和是 %1，应为 %2</source>
        <translation>The checksum is %1 and should be %2</translation>
    </message>
    <message>
        <source>写入校验和；“全部修复”可完成</source>
        <translation>Write the checksum; &quot;Fix all&quot; does it</translation>
    </message>
    <message>
        <source>扩展块的标记 %1 未知</source>
        <translation>The extension&apos;s tag %1 is not known</translation>
    </message>
    <message>
        <source>检查字节是否完整</source>
        <translation>See whether the bytes are whole</translation>
    </message>
    <message>
        <source>扩展块的详细时序从字节 %1 开始，那里不可能有</source>
        <translation>The detailed timings of the extension begin at byte %1, where none can be</translation>
    </message>
    <message>
        <source>给出 0，或 4 到 127 的字节</source>
        <translation>Give 0, or a byte from 4 to 127</translation>
    </message>
    <message>
        <source>数据块超出了详细时序之前的空间</source>
        <translation>A data block is longer than the room before the detailed timings</translation>
    </message>
    <message>
        <source>更正它的长度</source>
        <translation>Correct its length</translation>
    </message>
    <message>
        <source>%1 字节的数据段放不进它的块</source>
        <translation>The section of %1 bytes does not fit its block</translation>
    </message>
    <message>
        <source>一个块的数据段最多有 121 个字节</source>
        <translation>A section of one block has at most 121 bytes</translation>
    </message>
    <message>
        <source>数据段的校验和是 %1，应为 %2</source>
        <translation>The checksum of the section is %1 and should be %2</translation>
    </message>
    <message>
        <source>扩展块的修订 %1 无人使用</source>
        <translation>The extension has revision %1, which nothing uses</translation>
    </message>
    <message>
        <source>写入修订 3</source>
        <translation>Write revision 3</translation>
    </message>
    <message>
        <source>字节 3 是 %1，而同类的第一个扩展块中是 %2</source>
        <translation>Byte 3 is %1, but %2 in the first extension of this kind</translation>
    </message>
    <message>
        <source>在每个扩展块中写入相同的标志和本机时序数目</source>
        <translation>Write the same flags and number of native timings into each</translation>
    </message>
    <message>
        <source>字节 3 是 %1，但修订 1 没有标志</source>
        <translation>Byte 3 is %1, but revision 1 has no flags</translation>
    </message>
    <message>
        <source>写入 0，或修订 3</source>
        <translation>Write 0, or revision 3</translation>
    </message>
    <message>
        <source>声明有 %1 个本机详细时序，实际只有 %2 个</source>
        <translation>%1 detailed timings are called native, but there are %2</translation>
    </message>
    <message>
        <source>最多给出详细时序的数目</source>
        <translation>Give at most the number of detailed timings</translation>
    </message>
    <message>
        <source>数据块的内容有 %1 个字节，至少需要 %2 个</source>
        <translation>A data block has %1 bytes of content and needs at least %2</translation>
    </message>
    <message>
        <source>补全该数据块，或删除它</source>
        <translation>Complete the data block, or remove it</translation>
    </message>
    <message>
        <source>同类数据块只能有一个，这里是第二个</source>
        <translation>There is a second data block of a kind of which there may be only one</translation>
    </message>
    <message>
        <source>删除其中一个</source>
        <translation>Remove one of them</translation>
    </message>
    <message>
        <source>数据块与 IT 格式欠扫描的标志矛盾</source>
        <translation>The data block contradicts the flag for underscanned IT formats</translation>
    </message>
    <message>
        <source>设置或清除字节 3 的第 7 位，使两者一致</source>
        <translation>Set or clear bit 7 of byte 3 to agree with it</translation>
    </message>
    <message>
        <source>有音频数据，但基本音频的标志未设置</source>
        <translation>There is data about audio, but the flag of basic audio is clear</translation>
    </message>
    <message>
        <source>设置字节 3 的第 6 位</source>
        <translation>Set bit 6 of byte 3</translation>
    </message>
    <message>
        <source>音频数据块的 %1 个字节不是由三个字节的完整格式组成</source>
        <translation>The %1 bytes of an audio data block are not whole formats of three bytes</translation>
    </message>
    <message>
        <source>音频格式 0 是保留的</source>
        <translation>The audio format 0 is reserved</translation>
    </message>
    <message>
        <source>给出 1 到 15 的格式</source>
        <translation>Give a format from 1 to 15</translation>
    </message>
    <message>
        <source>音频格式的保留位被设置</source>
        <translation>Reserved bits of an audio format are set</translation>
    </message>
    <message>
        <source>清除第二个字节的第 7 位，线性 PCM 还要清除第三个字节的第 7 到 3 位</source>
        <translation>Clear bit 7 of its second byte, and for linear PCM bits 7 to 3 of the third</translation>
    </message>
    <message>
        <source>视频代码 %1 是保留的</source>
        <translation>The video code %1 is reserved</translation>
    </message>
    <message>
        <source>使用 1 到 127 或 193 到 219 的代码</source>
        <translation>Use a code from 1 to 127 or 193 to 219</translation>
    </message>
    <message>
        <source>视频代码 %1 前面已经列出</source>
        <translation>The video code %1 is listed before</translation>
    </message>
    <message>
        <source>每个代码只列一次</source>
        <translation>List each code once</translation>
    </message>
    <message>
        <source>视频代码 %1 既列为仅 4:2:0，又列为普通代码</source>
        <translation>The video code %1 is listed as 4:2:0 only and as a regular one</translation>
    </message>
    <message>
        <source>保留其中之一</source>
        <translation>Keep one of the two</translation>
    </message>
    <message>
        <source>最高 TMDS 时钟 %1 MHz 高于 340 MHz</source>
        <translation>The highest TMDS clock of %1 MHz is above 340 MHz</translation>
    </message>
    <message>
        <source>这里最多给出 340 MHz，更高的值写在 HDMI Forum 的数据块中</source>
        <translation>Give at most 340 MHz here, and more in the data block of the HDMI Forum</translation>
    </message>
    <message>
        <source>最高 TMDS 速率 %1 MHz 不在 340 MHz 以上、600 MHz 以下</source>
        <translation>The highest TMDS rate of %1 MHz is not above 340 MHz and up to 600 MHz</translation>
    </message>
    <message>
        <source>给出这样的速率，或用 0 表示不高于 340 MHz</source>
        <translation>Give such a rate, or 0 for none above 340 MHz</translation>
    </message>
    <message>
        <source>HDMI Forum 的数据块没有紧跟在 HDMI 的数据块之后</source>
        <translation>The data block of the HDMI Forum does not follow that of HDMI</translation>
    </message>
    <message>
        <source>把它直接放在 00-0C-03 的厂商数据块之后</source>
        <translation>Put it directly behind the vendor block with 00-0C-03</translation>
    </message>
    <message>
        <source>有第二个 HDMI Forum 的数据块</source>
        <translation>There is a second data block of the HDMI Forum</translation>
    </message>
    <message>
        <source>详细时序之后的字节不全为零</source>
        <translation>The bytes behind the detailed timings are not all zeros</translation>
    </message>
    <message>
        <source>数据段的产品类型不能是 %1</source>
        <translation>The section cannot have the product type %1</translation>
    </message>
    <message>
        <source>在第一个数据段给出产品类型，其后的写 0</source>
        <translation>Give the type of the product in the first section, and 0 in those that follow</translation>
    </message>
    <message>
        <source>数据段声明其后还有 %1 个，实际有 %2 个</source>
        <translation>The section announces %1 that follow, but there are %2</translation>
    </message>
    <message>
        <source>写入其后数据段的数目</source>
        <translation>Write the number of sections that follow</translation>
    </message>
    <message>
        <source>缺少此类产品需要的数据块，标记为 %1</source>
        <translation>The data block with the tag %1, which such a product needs, is missing</translation>
    </message>
    <message>
        <source>添加该数据块</source>
        <translation>Add the data block</translation>
    </message>
    <message>
        <source>各数据段中没有首选时序</source>
        <translation>No timing of the sections is the preferred one</translation>
    </message>
    <message>
        <source>把一个时序标为首选</source>
        <translation>Mark a timing as preferred</translation>
    </message>
    <message>
        <source>标记 %1 属于另一个版本的 DisplayID</source>
        <translation>The tag %1 belongs to another version of DisplayID</translation>
    </message>
    <message>
        <source>使用与数据段版本相符的数据块</source>
        <translation>Use a data block of the section&apos;s version</translation>
    </message>
    <message>
        <source>数据块的内容有 %1 个字节，应为 %2 个</source>
        <translation>The data block has %1 bytes of content instead of %2</translation>
    </message>
    <message>
        <source>更正长度和内容</source>
        <translation>Correct the length and the content</translation>
    </message>
    <message>
        <source>产品标识不是第一个数据块</source>
        <translation>The product identification is not the first data block</translation>
    </message>
    <message>
        <source>把它放在最前面</source>
        <translation>Put it first</translation>
    </message>
    <message>
        <source>显示参数给出了两次</source>
        <translation>The display parameters are given twice</translation>
    </message>
    <message>
        <source>删除两个数据块之一</source>
        <translation>Remove one of the two data blocks</translation>
    </message>
    <message>
        <source>时序的立体方式或宽高比是保留值</source>
        <translation>Stereo or aspect ratio of the timing has a reserved value</translation>
    </message>
    <message>
        <source>给出标准中的值</source>
        <translation>Give one of the values of the standard</translation>
    </message>
    <message>
        <source>数据块超出了数据段的剩余空间</source>
        <translation>A data block is longer than the rest of its section</translation>
    </message>
    <message>
        <source>数据块之后的字节不全为零</source>
        <translation>The bytes behind the data blocks are not all zeros</translation>
    </message>
    <message>
        <source>数据段之后的字节不全为零</source>
        <translation>The bytes behind the section are not all zeros</translation>
    </message>
</context>
<context>
    <name>CGroupModel</name>
    <message>
        <source>勾选：可以在图上拖动。双击：输入 x, y。</source>
        <translation>Tick: can be dragged on the chart. Double-click: type x, y.</translation>
    </message>
    <message>
        <source>勾选：使用自己的颜色，否则按显示顺序取色。双击：选择颜色。</source>
        <translation>Tick: has a colour of its own; otherwise colours go by the order of the groups shown. Double-click: choose a colour.</translation>
    </message>
    <message>
        <source>名称</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>显示</source>
        <translation>Visible</translation>
    </message>
    <message>
        <source>模式</source>
        <translation>Mode</translation>
    </message>
    <message>
        <source>红 / 青</source>
        <translation>Red / cyan</translation>
    </message>
    <message>
        <source>绿 / 品红</source>
        <translation>Green / magenta</translation>
    </message>
    <message>
        <source>蓝 / 黄</source>
        <translation>Blue / yellow</translation>
    </message>
    <message>
        <source>白</source>
        <translation>White</translation>
    </message>
    <message>
        <source>颜色</source>
        <translation>Colour</translation>
    </message>
    <message>
        <source>图例</source>
        <translation>Legend</translation>
    </message>
    <message>
        <source>输出色彩空间</source>
        <translation>Output colour space</translation>
    </message>
    <message>
        <source>屏幕色彩空间</source>
        <translation>Screen colour space</translation>
    </message>
    <message>
        <source>更改%1</source>
        <translation>Change %1</translation>
    </message>
    <message>
        <source>“%1”不是色度坐标。请输入 0 到 1 之间的两个数，例如 0.3127, 0.3290。</source>
        <translation>&quot;%1&quot; is not a chromaticity. Please type two numbers from 0 to 1, such as 0.3127, 0.3290.</translation>
    </message>
    <message>
        <source>白点必须在光谱轨迹以内。</source>
        <translation>The white point must lie inside the spectral locus.</translation>
    </message>
    <message>
        <source>%1，键 %2</source>
        <translation>%1, key %2</translation>
    </message>
</context>
<context>
    <name>CGroupPanel</name>
    <message>
        <source>添加</source>
        <translation>Add</translation>
    </message>
    <message>
        <source>预设</source>
        <translation>Preset</translation>
    </message>
    <message>
        <source>所选的组取标准的色度坐标</source>
        <translation>The selected group takes the chromaticities of a standard</translation>
    </message>
    <message>
        <source>删除</source>
        <translation>Remove</translation>
    </message>
    <message>
        <source>色彩组</source>
        <translation>Colour groups</translation>
    </message>
    <message>
        <source>屏幕覆盖输出色彩空间的 %1%</source>
        <translation>The screen covers %1% of the output colour space</translation>
    </message>
    <message>
        <source>没有覆盖率：需要显示输出和屏幕色彩空间</source>
        <translation>No coverage: show the output and the screen colour space</translation>
    </message>
    <message>
        <source>添加 %1</source>
        <translation>Add %1</translation>
    </message>
    <message>
        <source>添加输出和屏幕色彩空间</source>
        <translation>Add output and screen colour space</translation>
    </message>
    <message>
        <source>删除组</source>
        <translation>Remove group</translation>
    </message>
    <message>
        <source>已删除输出和屏幕色彩空间：覆盖率需要两者。</source>
        <translation>The output and the screen colour space were removed: the coverage needs both.</translation>
    </message>
    <message>
        <source>预设 %1</source>
        <translation>Preset %1</translation>
    </message>
    <message>
        <source>组的颜色</source>
        <translation>Colour of the group</translation>
    </message>
    <message>
        <source>输出和屏幕色彩空间(&amp;O)</source>
        <translation>&amp;Output and screen colour space</translation>
    </message>
</context>
<context>
    <name>CHandAdditionText</name>
    <message>
        <source>地址列表已满（%1 个地址），无法再手动添加主控。
请先删除不再使用的地址。</source>
        <translation>The address list is full (%1 addresses), so no processor can be added by hand.
Delete addresses that are no longer in use first.</translation>
    </message>
    <message>
        <source>本机地址 %1 之后没有空闲的地址，无法手动添加主控。
请先删除不再使用的地址，或检查本机的网络设置。</source>
        <translation>No address after this computer&apos;s %1 is free, so no processor can be added by hand.
Delete addresses that are no longer in use first, or check this computer&apos;s network settings.</translation>
    </message>
</context>
<context>
    <name>CInputHead</name>
    <message>
        <source>没有设置：对话框以默认值打开</source>
        <translation>No setting: the dialog opens with its defaults</translation>
    </message>
    <message>
        <source>只提供低帧率</source>
        <translation>Low rates only</translation>
    </message>
    <message>
        <source>对话框不提供 50 Hz 以上的帧率</source>
        <translation>The dialog offers no rate above 50 Hz</translation>
    </message>
    <message>
        <source>编辑 EDID...</source>
        <translation>Edit EDID...</translation>
    </message>
    <message>
        <source>请选择一个输入</source>
        <translation>Choose an input</translation>
    </message>
    <message>
        <source>块不能如实保存这个模式：%1。</source>
        <translation>The block cannot hold this mode as it is: %1.</translation>
    </message>
    <message>
        <source>；</source>
        <translation>; </translation>
    </message>
</context>
<context>
    <name>CJournalDock</name>
    <message>
        <source>主机调用记录</source>
        <translation>Host calls</translation>
    </message>
    <message>
        <source>筛选</source>
        <translation>Filter</translation>
    </message>
    <message>
        <source>显示读取</source>
        <translation>Show reads</translation>
    </message>
    <message>
        <source>复制</source>
        <translation>Copy</translation>
    </message>
    <message>
        <source>清空</source>
        <translation>Clear</translation>
    </message>
    <message>
        <source>合并重复的读取</source>
        <translation>Fold repeated reads</translation>
    </message>
    <message>
        <source>复制(&amp;C)</source>
        <translation>&amp;Copy</translation>
    </message>
    <message>
        <source>筛选主机调用</source>
        <translation>Filter of host calls</translation>
    </message>
</context>
<context>
    <name>CJournalFilter</name>
    <message>
        <source>写入失败</source>
        <translation>failed write</translation>
    </message>
</context>
<context>
    <name>CKeysDialog</name>
    <message>
        <source>新建、打开工程</source>
        <translation>New project, open a project</translation>
    </message>
    <message>
        <source>保存、另存为</source>
        <translation>Save, save as</translation>
    </message>
    <message>
        <source>显示页面</source>
        <translation>Show a page</translation>
    </message>
    <message>
        <source>显示或收起主机调用记录</source>
        <translation>Show or fold the journal of host calls</translation>
    </message>
    <message>
        <source>发送器列表：添加发送器</source>
        <translation>List of senders: add senders</translation>
    </message>
    <message>
        <source>发送器列表：编辑输入的 EDID，重命名发送器</source>
        <translation>List of senders: edit the EDID of an input, rename a sender</translation>
    </message>
    <message>
        <source>发送器列表、地址列表：删除所选的行</source>
        <translation>Lists of senders and addresses: remove the selected rows</translation>
    </message>
    <message>
        <source>从列表到标签、页面、主机调用记录；在色度图上从点到点</source>
        <translation>From list to tabs, page and journal; on the chart from point to point</translation>
    </message>
    <message>
        <source>所选行的菜单</source>
        <translation>Menu of the selected row</translation>
    </message>
    <message>
        <source>在左边选择一个输入，双击它，设置它的 EDID。</source>
        <translation>Double-click an input on the left and set its EDID.</translation>
    </message>
    <message>
        <source>在“输出”页设置画布、帧率和色深。</source>
        <translation>Set canvas, frame rate and depth on the page &quot;Output&quot;.</translation>
    </message>
    <message>
        <source>在“地址”页给主控分配地址。</source>
        <translation>Give the processors their addresses on the page &quot;Addresses&quot;.</translation>
    </message>
    <message>
        <source>按键和步骤</source>
        <translation>Steps and keys</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Close</translation>
    </message>
    <message>
        <source>步骤</source>
        <translation>Steps</translation>
    </message>
    <message>
        <source>按键</source>
        <translation>Keys</translation>
    </message>
    <message>
        <source>保存工程。没有画面时，看下面的主机调用记录：失败的写入有红色标记。</source>
        <translation>Save the project. Without a picture, look at the journal below: failed writes have a red mark.</translation>
    </message>
    <message>
        <source>撤销、重做工程的任何更改；在 EDID 页先是块的更改</source>
        <translation>Undo and redo any change of the project; on the page EDID of the block first</translation>
    </message>
    <message>
        <source>主机调用记录：复制所选的行</source>
        <translation>Journal of host calls: copy the selected rows</translation>
    </message>
    <message>
        <source>地址列表：修改地址；EDID 页：编辑字段</source>
        <translation>List of addresses: change the address; page EDID: edit a field</translation>
    </message>
    <message>
        <source>EDID 页：打开文件、粘贴 EDID、显示发送器的存储器</source>
        <translation>Page EDID: open a file, paste an EDID, show the sender&apos;s memory</translation>
    </message>
    <message>
        <source>EDID 页：与文件、粘贴的文本、发送器的存储器比较</source>
        <translation>Page EDID: compare with a file, pasted text, the sender&apos;s memory</translation>
    </message>
    <message>
        <source>EDID 页：下一处、上一处不同</source>
        <translation>Page EDID: the next and the previous difference</translation>
    </message>
    <message>
        <source>绘制可行区域时：闭合、去掉一个角、放弃</source>
        <translation>While a feasible region is drawn: close, take back a corner, give up</translation>
    </message>
    <message>
        <source>本页、退出</source>
        <translation>This page, exit</translation>
    </message>
</context>
<context>
    <name>CMainMenu</name>
    <message>
        <source>工程(&amp;P)</source>
        <translation>&amp;Project</translation>
    </message>
    <message>
        <source>新建(&amp;N)</source>
        <translation>&amp;New</translation>
    </message>
    <message>
        <source>演示发送器(&amp;D)</source>
        <translation>&amp;Demo senders</translation>
    </message>
    <message>
        <source>所有类型的发送器(&amp;A)</source>
        <translation>Senders of &amp;all types</translation>
    </message>
    <message>
        <source>空工程(&amp;E)</source>
        <translation>&amp;Empty project</translation>
    </message>
    <message>
        <source>打开(&amp;O)...</source>
        <translation>&amp;Open...</translation>
    </message>
    <message>
        <source>最近的工程(&amp;R)</source>
        <translation>&amp;Recent projects</translation>
    </message>
    <message>
        <source>保存(&amp;S)</source>
        <translation>&amp;Save</translation>
    </message>
    <message>
        <source>另存为(&amp;A)...</source>
        <translation>Save &amp;as...</translation>
    </message>
    <message>
        <source>退出(&amp;X)</source>
        <translation>E&amp;xit</translation>
    </message>
    <message>
        <source>没有(&amp;N)</source>
        <translation>&amp;None</translation>
    </message>
    <message>
        <source>编辑(&amp;E)</source>
        <translation>&amp;Edit</translation>
    </message>
    <message>
        <source>发送器(&amp;S)</source>
        <translation>&amp;Senders</translation>
    </message>
    <message>
        <source>视图(&amp;V)</source>
        <translation>&amp;View</translation>
    </message>
    <message>
        <source>主机调用记录(&amp;J)</source>
        <translation>&amp;Journal of host calls</translation>
    </message>
    <message>
        <source>语言(&amp;L)</source>
        <translation>&amp;Language</translation>
    </message>
    <message>
        <source>帮助(&amp;H)</source>
        <translation>&amp;Help</translation>
    </message>
    <message>
        <source>按键和步骤(&amp;K)</source>
        <translation>Steps and &amp;keys</translation>
    </message>
    <message>
        <source>关于(&amp;A)...</source>
        <translation>&amp;About...</translation>
    </message>
    <message>
        <source>关于</source>
        <translation>About</translation>
    </message>
    <message>
        <source>发送器工作台 %1

用 SenderModuleDialog 的对话框设置模拟的 LED 显示屏发送器。
Qt %2</source>
        <translation>Sender workbench %1

Sets up simulated LED-display senders with the dialogs of SenderModuleDialog.
Qt %2</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Close</translation>
    </message>
</context>
<context>
    <name>CMainWindow</name>
    <message>
        <source>工程</source>
        <translation>Project</translation>
    </message>
    <message>
        <source>未命名</source>
        <translation>Untitled</translation>
    </message>
    <message>
        <source>发送器工作台</source>
        <translation>Sender Workbench</translation>
    </message>
</context>
<context>
    <name>CMeasuredWall</name>
    <message>
        <source>导入测量</source>
        <translation>Import measurements</translation>
    </message>
    <message>
        <source>清除测量</source>
        <translation>Clear measurements</translation>
    </message>
</context>
<context>
    <name>CMeasurementProblem</name>
    <message>
        <source>不是文本文件；请导出为 UTF-8 的 CSV</source>
        <translation>This is no text; export it as CSV in UTF-8</translation>
    </message>
    <message>
        <source>没有内容；第一行应为表头</source>
        <translation>There is nothing; the first line should be a heading</translation>
    </message>
    <message>
        <source>“%1”不是表头；例如 module,Rx,Ry,RY,Gx,Gy,GY,Bx,By,BY</source>
        <translation>&apos;%1&apos; begins no heading; begin with one such as module,Rx,Ry,RY,Gx,Gy,GY,Bx,By,BY</translation>
    </message>
    <message>
        <source>表头缺少列 %1；请补上</source>
        <translation>the heading has no column %1; add it</translation>
    </message>
    <message>
        <source>表头有两个“%1”；请删去一个</source>
        <translation>the heading has column &apos;%1&apos; twice; remove one</translation>
    </message>
    <message>
        <source>引号没有结束；请补上</source>
        <translation>the quoted field does not end; add the closing quote</translation>
    </message>
    <message>
        <source>表头之后没有数据；每个模组一行</source>
        <translation>nothing follows the heading; add a line for each module</translation>
    </message>
    <message>
        <source>“%1”不是数字；例如 0.3127</source>
        <translation>&apos;%1&apos; is not a number; write one such as 0.3127</translation>
    </message>
    <message>
        <source>“%1”不可能：%2</source>
        <translation>&apos;%1&apos; is not possible: %2</translation>
    </message>
    <message>
        <source>“%1”不是基色；请写 R、G、B 或 W</source>
        <translation>&apos;%1&apos; is no primary; write R, G, B or W</translation>
    </message>
    <message>
        <source>模组“%1”出现两次；请删去一个或改名</source>
        <translation>module &apos;%1&apos; is there twice; remove one or rename it</translation>
    </message>
    <message>
        <source>模组“%1”的这个基色出现两次；请删去一个</source>
        <translation>module &apos;%1&apos; has this primary twice; remove one</translation>
    </message>
    <message>
        <source>模组“%1”缺少基色；需要红、绿、蓝</source>
        <translation>module &apos;%1&apos; lacks a primary; it needs red, green and blue</translation>
    </message>
    <message>
        <source>模组“%1”不可能：%2</source>
        <translation>module &apos;%1&apos; is not possible: %2</translation>
    </message>
    <message>
        <source>数字不是有限的</source>
        <translation>a number is not finite</translation>
    </message>
    <message>
        <source>x 和 y 必须大于 0，且和不大于 1</source>
        <translation>x and y must be above 0, and their sum at most 1</translation>
    </message>
    <message>
        <source>亮度必须大于 0</source>
        <translation>a luminance must be above 0</translation>
    </message>
    <message>
        <source>三个基色在一条直线上</source>
        <translation>the three primaries lie on one line</translation>
    </message>
    <message>
        <source>色温不在 1000 K 到 20000 K 之间</source>
        <translation>the temperature is not from 1000 K to 20000 K</translation>
    </message>
    <message>
        <source>该点就是白点</source>
        <translation>the point is the white itself</translation>
    </message>
    <message>
        <source>白点在色域之外</source>
        <translation>the white lies outside the gamut</translation>
    </message>
    <message>
        <source>各模组没有公共色域</source>
        <translation>no chromaticity lies in the gamut of every module</translation>
    </message>
    <message>
        <source>没有模组</source>
        <translation>there are no modules</translation>
    </message>
    <message>
        <source>第 %1 行第 %2 列：%3</source>
        <translation>Line %1, column %2: %3</translation>
    </message>
</context>
<context>
    <name>CModuleModel</name>
    <message>
        <source>到全屏均值的 u&apos;v&apos; 距离</source>
        <translation>Distance from the wall&apos;s mean in u&apos;v&apos;</translation>
    </message>
    <message>
        <source>与均值相差最大的亮度</source>
        <translation>The luminance farthest from the mean</translation>
    </message>
    <message>
        <source>模组</source>
        <translation>Module</translation>
    </message>
    <message>
        <source>异常</source>
        <translation>Odd</translation>
    </message>
    <message>
        <source>红</source>
        <translation>Red</translation>
    </message>
    <message>
        <source>绿</source>
        <translation>Green</translation>
    </message>
    <message>
        <source>蓝</source>
        <translation>Blue</translation>
    </message>
    <message>
        <source>白</source>
        <translation>White</translation>
    </message>
    <message>
        <source>亮度</source>
        <translation>luminance</translation>
    </message>
    <message>
        <source>颜色、亮度</source>
        <translation>both</translation>
    </message>
    <message>
        <source>颜色</source>
        <translation>colour</translation>
    </message>
</context>
<context>
    <name>COutputFacts</name>
    <message>
        <source>开</source>
        <translation>On</translation>
    </message>
    <message>
        <source>关</source>
        <translation>Off</translation>
    </message>
    <message>
        <source>没有设置</source>
        <translation>no setting</translation>
    </message>
    <message>
        <source>没有文件</source>
        <translation>No file</translation>
    </message>
    <message>
        <source>无法读取</source>
        <translation>Unreadable</translation>
    </message>
    <message>
        <source>画布、帧率和色深</source>
        <translation>Canvas, frame rate and colour depth</translation>
    </message>
    <message>
        <source>工程</source>
        <translation>Project</translation>
    </message>
    <message>
        <source>硬件</source>
        <translation>Hardware</translation>
    </message>
    <message>
        <source>画布</source>
        <translation>Canvas</translation>
    </message>
    <message>
        <source>最大帧率</source>
        <translation>Maximum frame rate</translation>
    </message>
    <message>
        <source>输入的最大帧率</source>
        <translation>Maximum input frame rate</translation>
    </message>
    <message>
        <source>输出色深</source>
        <translation>Output depth</translation>
    </message>
    <message>
        <source>画布大小...</source>
        <translation>Canvas size...</translation>
    </message>
    <message>
        <source>帧率和色深...</source>
        <translation>Frame rate and depth...</translation>
    </message>
    <message>
        <source>启用</source>
        <translation>Enabled</translation>
    </message>
    <message>
        <source>不透明度</source>
        <translation>Opacity</translation>
    </message>
    <message>
        <source>契合度</source>
        <translation>Fit</translation>
    </message>
    <message>
        <source>图片</source>
        <translation>Picture</translation>
    </message>
    <message>
        <source>背景图片</source>
        <translation>Background picture</translation>
    </message>
    <message>
        <source>设置背景图片...</source>
        <translation>Set background picture...</translation>
    </message>
    <message>
        <source>50 Hz：%1</source>
        <translation>50 Hz: %1</translation>
    </message>
    <message>
        <source>未知</source>
        <translation>Unknown</translation>
    </message>
    <message>
        <source>拉伸</source>
        <translation>Stretch</translation>
    </message>
</context>
<context>
    <name>COutputPage</name>
    <message>
        <source>背景图片已启用，但文件不存在：
%1
请重新选取图片。</source>
        <translation>The background picture is switched on, but its file is missing:
%1
Choose a picture again.</translation>
    </message>
    <message>
        <source>无法读取背景图片：
%1
%2
请选取另一张图片。</source>
        <translation>The background picture cannot be read:
%1
%2
Choose another picture.</translation>
    </message>
    <message>
        <source>背景图片太大（%1 像素），此处不显示。</source>
        <translation>The background picture (%1 pixels) is too large to be shown here.</translation>
    </message>
    <message>
        <source>画布</source>
        <translation>Canvas</translation>
    </message>
    <message>
        <source>输出</source>
        <translation>Output</translation>
    </message>
    <message>
        <source>请选择一个发送器</source>
        <translation>Select a sender</translation>
    </message>
    <message>
        <source>画布没有面积：%1</source>
        <translation>The canvas has no area: %1</translation>
    </message>
    <message>
        <source>没有背景图片</source>
        <translation>No background picture</translation>
    </message>
    <message>
        <source>背景图片已关闭</source>
        <translation>The background picture is switched off</translation>
    </message>
    <message>
        <source>背景图片完全透明</source>
        <translation>The background picture is fully transparent</translation>
    </message>
    <message>
        <source>画布大小已设为 %1。</source>
        <translation>The canvas is now %1.</translation>
    </message>
    <message>
        <source>最大帧率已设为 %1 Hz，输出色深已设为 %2 bit。</source>
        <translation>The maximum frame rate is now %1 Hz, the output depth %2 bit.</translation>
    </message>
    <message>
        <source>设置画布</source>
        <translation>Set canvas</translation>
    </message>
    <message>
        <source>设置帧率和色深</source>
        <translation>Set rate and depth</translation>
    </message>
    <message>
        <source>设置背景图片</source>
        <translation>Set background picture</translation>
    </message>
</context>
<context>
    <name>CPictureSizeDialog</name>
    <message>
        <source>宽</source>
        <translation>Width</translation>
    </message>
    <message>
        <source> 像素</source>
        <translation> pixels</translation>
    </message>
    <message>
        <source>高</source>
        <translation>Height</translation>
    </message>
    <message>
        <source>分辨率</source>
        <translation>Resolution</translation>
    </message>
    <message>
        <source> dpi</source>
        <translation> dpi</translation>
    </message>
    <message>
        <source>分辨率越高，线条和文字占的像素越多；屏幕为 96 dpi</source>
        <translation>At a higher resolution lines and letters have more pixels; a screen has 96 dpi</translation>
    </message>
</context>
<context>
    <name>CPointReadingsModel</name>
    <message>
        <source>红</source>
        <translation>Red</translation>
    </message>
    <message>
        <source>绿</source>
        <translation>Green</translation>
    </message>
    <message>
        <source>蓝</source>
        <translation>Blue</translation>
    </message>
    <message>
        <source>白</source>
        <translation>White</translation>
    </message>
    <message>
        <source>CIE 1976 均匀色度坐标</source>
        <translation>CIE 1976 uniform chromaticity</translation>
    </message>
    <message>
        <source>相对本组白点的主波长；c 表示补色波长</source>
        <translation>Dominant wavelength against the group&apos;s white; c marks a complementary one</translation>
    </message>
    <message>
        <source>兴奋纯度</source>
        <translation>Excitation purity</translation>
    </message>
    <message>
        <source>各基色在白点亮度中的比例</source>
        <translation>The part of each primary in the luminance of the white</translation>
    </message>
    <message>
        <source>普朗克轨迹上最近点的温度</source>
        <translation>Temperature of the nearest point of the Planckian locus</translation>
    </message>
    <message>
        <source>到普朗克轨迹的距离，偏绿为正</source>
        <translation>Distance from the Planckian locus, positive toward green</translation>
    </message>
    <message>
        <source>日光轨迹上最近点的温度</source>
        <translation>Temperature of the nearest point of the daylight locus</translation>
    </message>
    <message>
        <source>主波长</source>
        <translation>Wavelength</translation>
    </message>
    <message>
        <source>纯度</source>
        <translation>Purity</translation>
    </message>
    <message>
        <source>亮度比例</source>
        <translation>Luminance</translation>
    </message>
    <message>
        <source>相关色温</source>
        <translation>CCT</translation>
    </message>
    <message>
        <source>Duv</source>
        <translation>Duv</translation>
    </message>
    <message>
        <source>日光色温</source>
        <translation>Daylight</translation>
    </message>
</context>
<context>
    <name>CProjectActions</name>
    <message>
        <source>工程 (*.json);;所有文件 (*)</source>
        <translation>Projects (*.json);;All files (*)</translation>
    </message>
    <message>
        <source>打开工程</source>
        <translation>Open project</translation>
    </message>
    <message>
        <source>无法打开工程。
%1</source>
        <translation>The project cannot be opened.
%1</translation>
    </message>
    <message>
        <source>已打开 %1</source>
        <translation>Opened %1</translation>
    </message>
    <message>
        <source>保存工程</source>
        <translation>Save project</translation>
    </message>
    <message>
        <source>无法保存工程。
%1</source>
        <translation>The project cannot be saved.
%1</translation>
    </message>
    <message>
        <source>原有文件不是可读的工程，已另存为 %1。</source>
        <translation>The existing file is not a readable project; it has been kept as %1.</translation>
    </message>
    <message>
        <source>已保存 %1</source>
        <translation>Saved %1</translation>
    </message>
    <message>
        <source>未保存的更改</source>
        <translation>Unsaved changes</translation>
    </message>
    <message>
        <source>工程有未保存的更改。要保存吗？</source>
        <translation>The project has unsaved changes. Save them?</translation>
    </message>
    <message>
        <source>保存</source>
        <translation>Save</translation>
    </message>
    <message>
        <source>不保存</source>
        <translation>Discard</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>工程</source>
        <translation>Project</translation>
    </message>
</context>
<context>
    <name>CProjectColours</name>
    <message>
        <source>可行区域</source>
        <translation>Feasible region</translation>
    </message>
</context>
<context>
    <name>CProjectHistory</name>
    <message>
        <source>撤销(&amp;U)：%1</source>
        <translation>&amp;Undo: %1</translation>
    </message>
    <message>
        <source>重做(&amp;R)：%1</source>
        <translation>&amp;Redo: %1</translation>
    </message>
    <message>
        <source>撤销(&amp;U)</source>
        <translation>&amp;Undo</translation>
    </message>
    <message>
        <source>重做(&amp;R)</source>
        <translation>&amp;Redo</translation>
    </message>
    <message>
        <source>更改工程</source>
        <translation>Change of the project</translation>
    </message>
    <message>
        <source>已撤销：%1</source>
        <translation>Undone: %1</translation>
    </message>
    <message>
        <source>已重做：%1</source>
        <translation>Done again: %1</translation>
    </message>
</context>
<context>
    <name>CReadingsPanel</name>
    <message>
        <source>覆盖的标准</source>
        <translation>Standards covered</translation>
    </message>
    <message>
        <source>所选组的读数</source>
        <translation>Readings of the selected group</translation>
    </message>
    <message>
        <source>所选组覆盖的标准</source>
        <translation>Standards that the selected group covers</translation>
    </message>
    <message>
        <source>没有选中的组</source>
        <translation>No group is selected</translation>
    </message>
</context>
<context>
    <name>CReadoutText</name>
    <message>
        <source>红</source>
        <translation>red</translation>
    </message>
    <message>
        <source>绿</source>
        <translation>green</translation>
    </message>
    <message>
        <source>蓝</source>
        <translation>blue</translation>
    </message>
    <message>
        <source>白</source>
        <translation>white</translation>
    </message>
    <message>
        <source>青</source>
        <translation>cyan</translation>
    </message>
    <message>
        <source>品红</source>
        <translation>magenta</translation>
    </message>
    <message>
        <source>黄</source>
        <translation>yellow</translation>
    </message>
    <message>
        <source>%1，色温 %2 K</source>
        <translation>%1, colour temperature %2 K</translation>
    </message>
    <message>
        <source>波长 %1 nm</source>
        <translation>wavelength %1 nm</translation>
    </message>
</context>
<context>
    <name>CRegionOverlay</name>
    <message>
        <source>单击放置第一个顶点。Esc 取消。</source>
        <translation>Click to set the first corner. Esc cancels.</translation>
    </message>
    <message>
        <source>单击放置下一个顶点，至少三个。退格键撤回一个，Esc 取消。</source>
        <translation>Click to set the next corner, three or more. Backspace takes one back, Esc cancels.</translation>
    </message>
    <message>
        <source>双击或回车完成区域。退格键撤回一个顶点，Esc 取消。</source>
        <translation>Double-click or Enter closes the region. Backspace takes a corner back, Esc cancels.</translation>
    </message>
</context>
<context>
    <name>CSenderActions</name>
    <message>
        <source>编辑(&amp;E)...</source>
        <translation>&amp;Edit...</translation>
    </message>
    <message>
        <source>重命名(&amp;M)</source>
        <translation>Rena&amp;me</translation>
    </message>
    <message>
        <source>添加(&amp;A)...</source>
        <translation>&amp;Add...</translation>
    </message>
    <message>
        <source>删除所选的发送器(&amp;D)</source>
        <translation>Remove the selected sen&amp;ders</translation>
    </message>
    <message>
        <source>重命名发送器</source>
        <translation>Rename sender</translation>
    </message>
    <message>
        <source>添加发送器</source>
        <translation>Add senders</translation>
    </message>
    <message>
        <source>已添加 %1 个发送器，共要求 %2 个：工程的编号已用完。</source>
        <translation>%1 of %2 senders added: the project has no more ids.</translation>
    </message>
    <message>
        <source>已添加 %1 个发送器。</source>
        <translation>Senders added: %1.</translation>
    </message>
    <message>
        <source>删除 %1 个发送器</source>
        <translation>Remove senders (%1)</translation>
    </message>
    <message>
        <source>已删除 %1 个发送器。</source>
        <translation>Senders removed: %1.</translation>
    </message>
</context>
<context>
    <name>CSenderPropertyText</name>
    <message>
        <source>发送器</source>
        <translation>Sender</translation>
    </message>
    <message>
        <source>输出</source>
        <translation>Output</translation>
    </message>
    <message>
        <source>画布</source>
        <translation>Canvas</translation>
    </message>
    <message>
        <source>故障</source>
        <translation>Faults</translation>
    </message>
    <message>
        <source>寻址（整个工程）</source>
        <translation>Addressing (whole project)</translation>
    </message>
    <message>
        <source>8 位</source>
        <translation>8 bit</translation>
    </message>
    <message>
        <source>10 位</source>
        <translation>10 bit</translation>
    </message>
    <message>
        <source>12 位</source>
        <translation>12 bit</translation>
    </message>
    <message>
        <source>由工程计算</source>
        <translation>computed from the project</translation>
    </message>
    <message>
        <source>没有超限</source>
        <translation>none exceeded</translation>
    </message>
    <message>
        <source>输出视频区域</source>
        <translation>output video area</translation>
    </message>
    <message>
        <source>DVI 1 至 4</source>
        <translation>DVI 1 to 4</translation>
    </message>
    <message>
        <source>DVI 5 至 8</source>
        <translation>DVI 5 to 8</translation>
    </message>
    <message>
        <source>输出口带载面积</source>
        <translation>load of an output port</translation>
    </message>
    <message>
        <source>EDID 输出面积</source>
        <translation>EDID output area</translation>
    </message>
    <message>
        <source>未知的标志</source>
        <translation>an unknown flag</translation>
    </message>
    <message>
        <source>名称</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>视频处理器</source>
        <translation>Video processor</translation>
    </message>
    <message>
        <source>支持 10 位</source>
        <translation>Supports 10 bit</translation>
    </message>
    <message>
        <source>支持 12 位</source>
        <translation>Supports 12 bit</translation>
    </message>
    <message>
        <source>接受完整的 EDID 记录</source>
        <translation>Accepts the full EDID record</translation>
    </message>
    <message>
        <source>支持 EDID 扩展块</source>
        <translation>Supports EDID extension blocks</translation>
    </message>
    <message>
        <source>输出口数量</source>
        <translation>Output ports</translation>
    </message>
    <message>
        <source>工程帧率 (Hz)</source>
        <translation>Project frame rate (Hz)</translation>
    </message>
    <message>
        <source>工程色深（位）</source>
        <translation>Project colour depth (bit)</translation>
    </message>
    <message>
        <source>硬件色深</source>
        <translation>Hardware colour depth</translation>
    </message>
    <message>
        <source>硬件以 50 Hz 运行</source>
        <translation>Hardware runs at 50 Hz</translation>
    </message>
    <message>
        <source>输出超限</source>
        <translation>Output limits exceeded</translation>
    </message>
    <message>
        <source>画布宽</source>
        <translation>Canvas width</translation>
    </message>
    <message>
        <source>画布高</source>
        <translation>Canvas height</translation>
    </message>
    <message>
        <source>从硬件读取画布</source>
        <translation>Canvas size is read from the hardware</translation>
    </message>
    <message>
        <source>硬件画布宽</source>
        <translation>Hardware canvas width</translation>
    </message>
    <message>
        <source>硬件画布高</source>
        <translation>Hardware canvas height</translation>
    </message>
    <message>
        <source>最大宽</source>
        <translation>Maximum width</translation>
    </message>
    <message>
        <source>最大高</source>
        <translation>Maximum height</translation>
    </message>
    <message>
        <source>最大面积</source>
        <translation>Maximum area</translation>
    </message>
    <message>
        <source>EDID 写入失败</source>
        <translation>Writing an EDID fails</translation>
    </message>
    <message>
        <source>EDID 写入后不生效</source>
        <translation>A written EDID does not take effect</translation>
    </message>
    <message>
        <source>写入延迟（毫秒）</source>
        <translation>Delay of a write (ms)</translation>
    </message>
    <message>
        <source>演示模式</source>
        <translation>Demo mode</translation>
    </message>
    <message>
        <source>按 IP 地址寻址</source>
        <translation>Addressed by IP address</translation>
    </message>
    <message>
        <source>主控数量上限（按地址）</source>
        <translation>Maximum number of processors (by address)</translation>
    </message>
    <message>
        <source>按地址：手动添加时要求起始地址</source>
        <translation>By address: adding by hand asks for a start address</translation>
    </message>
    <message>
        <source>不按地址</source>
        <translation>Not by address</translation>
    </message>
    <message>
        <source>实际输入帧率 (Hz)</source>
        <translation>Actual input rate (Hz)</translation>
    </message>
    <message>
        <source>未知</source>
        <translation>Unknown</translation>
    </message>
    <message>
        <source>探测方式</source>
        <translation>Detection</translation>
    </message>
    <message>
        <source>已有主控数量</source>
        <translation>Processors that are there already</translation>
    </message>
    <message>
        <source>发送器的数量</source>
        <translation>As many as there are senders</translation>
    </message>
</context>
<context>
    <name>CSenderTree</name>
    <message>
        <source>写入失败</source>
        <translation>writes fail</translation>
    </message>
    <message>
        <source>慢</source>
        <translation>slow</translation>
    </message>
    <message>
        <source>正常</source>
        <translation>normal</translation>
    </message>
    <message>
        <source>，</source>
        <translation>, </translation>
    </message>
    <message>
        <source>没有设置</source>
        <translation>no setting</translation>
    </message>
    <message>
        <source>发送器</source>
        <translation>Sender</translation>
    </message>
    <message>
        <source>状态</source>
        <translation>State</translation>
    </message>
    <message>
        <source>接口 %1</source>
        <translation>interface %1</translation>
    </message>
    <message>
        <source>类型 %1</source>
        <translation>type %1</translation>
    </message>
    <message>
        <source>类型或接口</source>
        <translation>Type or ID</translation>
    </message>
    <message>
        <source>发送器和输入</source>
        <translation>Senders and inputs</translation>
    </message>
</context>
<context>
    <name>CSimulationPage</name>
    <message>
        <source>模拟</source>
        <translation>Simulation</translation>
    </message>
    <message>
        <source>更改“%1”</source>
        <translation>Change &quot;%1&quot;</translation>
    </message>
</context>
<context>
    <name>CSimulatorText</name>
    <message>
        <source>Input %1</source>
        <translation>输入 %1</translation>
    </message>
</context>
<context>
    <name>CVerdictText</name>
    <message>
        <source>可以使用</source>
        <translation>can be used</translation>
    </message>
    <message>
        <source>本机的地址：需要确认</source>
        <translation>an address of this computer: needs confirmation</translation>
    </message>
    <message>
        <source>已在列表中</source>
        <translation>already in the list</translation>
    </message>
    <message>
        <source>以 0 开头</source>
        <translation>begins with 0</translation>
    </message>
    <message>
        <source>默认网关的地址</source>
        <translation>the address of the default gateway</translation>
    </message>
    <message>
        <source>广播地址</source>
        <translation>a broadcast address</translation>
    </message>
    <message>
        <source>主机不能使用的地址：组播、保留或网络地址</source>
        <translation>an address that hosts cannot use: multicast, reserved or a network address</translation>
    </message>
    <message>
        <source>不是完整的地址</source>
        <translation>not a complete address</translation>
    </message>
</context>
<context>
    <name>CWallPanel</name>
    <message>
        <source>导入...</source>
        <translation>Import...</translation>
    </message>
    <message>
        <source>粘贴</source>
        <translation>Paste</translation>
    </message>
    <message>
        <source>从电子表格复制的测量数据，含表头</source>
        <translation>Measurements copied from a spreadsheet, with their heading</translation>
    </message>
    <message>
        <source>导出...</source>
        <translation>Export...</translation>
    </message>
    <message>
        <source>清除</source>
        <translation>Clear</translation>
    </message>
    <message>
        <source>标准</source>
        <translation>Standard</translation>
    </message>
    <message>
        <source>在图上显示</source>
        <translation>Show on the chart</translation>
    </message>
    <message>
        <source>测量的模组</source>
        <translation>Measured modules</translation>
    </message>
    <message>
        <source>导入或粘贴各模组的测量数据（CSV）：每个模组一行，例如 module,Rx,Ry,RY,Gx,Gy,GY,Bx,By,BY。</source>
        <translation>Import or paste the measurements of the modules (CSV): a line each, such as module,Rx,Ry,RY,Gx,Gy,GY,Bx,By,BY.</translation>
    </message>
    <message>
        <source>，相关色温 %1 K，Duv %2</source>
        <translation>, CCT %1 K, Duv %2</translation>
    </message>
    <message>
        <source>%1 个模组，%2 个异常。平均白点 %3，%4 cd/m²%5。</source>
        <translation>%1 modules, %2 odd. Mean white %3, %4 cd/m²%5.</translation>
    </message>
    <message>
        <source>没有公共色域：%1。</source>
        <translation>No common gamut: %1.</translation>
    </message>
    <message>
        <source>校正后共同的白点 %1 最高 %2 cd/m²，受限于模组 %3。</source>
        <translation>Corrected, all show white %1 at up to %2 cd/m², limited by module %3.</translation>
    </message>
    <message>
        <source>无法显示 %1：%2。</source>
        <translation>%1 cannot be shown: %2.</translation>
    </message>
    <message>
        <source>%1：覆盖 xy %2%，u&apos;v&apos; %3%；%4% 的颜色超出范围。</source>
        <translation>%1: covered %2% in xy, %3% in u&apos;v&apos;; %4% of the colours clip.</translation>
    </message>
    <message>
        <source>已导入 %1 个模组</source>
        <translation>Imported %1 modules</translation>
    </message>
    <message>
        <source>无法读取 %1：%2。请选择别的文件。</source>
        <translation>%1 cannot be read: %2. Choose another file.</translation>
    </message>
    <message>
        <source>已保存 %1</source>
        <translation>Saved %1</translation>
    </message>
    <message>
        <source>无法写入 %1：%2。请选择别的位置。</source>
        <translation>%1 cannot be written: %2. Choose another place.</translation>
    </message>
    <message>
        <source>导入测量数据</source>
        <translation>Import measurements</translation>
    </message>
    <message>
        <source>测量数据 (*.csv *.tsv *.txt)</source>
        <translation>Measurements (*.csv *.tsv *.txt)</translation>
    </message>
    <message>
        <source>导出测量数据</source>
        <translation>Export measurements</translation>
    </message>
    <message>
        <source>测量数据 (*.csv)</source>
        <translation>Measurements (*.csv)</translation>
    </message>
    <message>
        <source>报告...</source>
        <translation>Report...</translation>
    </message>
    <message>
        <source>两页 PDF：色度图和表格</source>
        <translation>A PDF of two pages: chart and tables</translation>
    </message>
    <message>
        <source>测量的屏幕</source>
        <translation>Measured wall</translation>
    </message>
    <message>
        <source>保存报告</source>
        <translation>Save the report</translation>
    </message>
    <message>
        <source>报告 (*.pdf)</source>
        <translation>Report (*.pdf)</translation>
    </message>
    <message>
        <source>无法导入测量数据。%1。
原来的数据没有改变。请更正后重试。</source>
        <translation>The measurements were not imported. %1.
The previous ones are unchanged. Correct the text and try again.</translation>
    </message>
    <message>
        <source>文件大于 %1 MB</source>
        <translation>the file is larger than %1 MB</translation>
    </message>
</context>
<context>
    <name>CWallReport</name>
    <message>
        <source>模组 %1 个，异常 %2 个</source>
        <translation>%1 modules, %2 odd</translation>
    </message>
    <message>
        <source>细线：各模组；虚线：异常的模组；浅色区域：公共色域</source>
        <translation>Thin lines: modules; dashed: odd modules; light area: common gamut</translation>
    </message>
    <message>
        <source>红</source>
        <translation>Red</translation>
    </message>
    <message>
        <source>绿</source>
        <translation>Green</translation>
    </message>
    <message>
        <source>蓝</source>
        <translation>Blue</translation>
    </message>
    <message>
        <source>白</source>
        <translation>White</translation>
    </message>
    <message>
        <source>平均值</source>
        <translation>Mean</translation>
    </message>
    <message>
        <source>白点的相关色温</source>
        <translation>CCT of the white</translation>
    </message>
    <message>
        <source>校正后各模组相同</source>
        <translation>After correction all modules are alike</translation>
    </message>
    <message>
        <source>没有公共色域，或白点在其外</source>
        <translation>There is no common gamut, or the white lies outside it</translation>
    </message>
    <message>
        <source>公共色域</source>
        <translation>Common gamut</translation>
    </message>
    <message>
        <source>白点</source>
        <translation>White</translation>
    </message>
    <message>
        <source>受限于 %1</source>
        <translation>limited by %1</translation>
    </message>
    <message>
        <source>覆盖的标准</source>
        <translation>Standards covered</translation>
    </message>
    <message>
        <source>平均 xy</source>
        <translation>Mean, xy</translation>
    </message>
    <message>
        <source>平均 u&apos;v&apos;</source>
        <translation>Mean, u&apos;v&apos;</translation>
    </message>
    <message>
        <source>公共 xy</source>
        <translation>Common, xy</translation>
    </message>
    <message>
        <source>公共 u&apos;v&apos;</source>
        <translation>Common, u&apos;v&apos;</translation>
    </message>
    <message>
        <source>从 %1 到驱动值的矩阵（线性光）</source>
        <translation>Matrix from %1 to drive values (linear light)</translation>
    </message>
    <message>
        <source>白点在色域之外</source>
        <translation>the white lies outside the gamut</translation>
    </message>
    <message>
        <source>超出范围的颜色</source>
        <translation>Colours that clip</translation>
    </message>
    <message>
        <source>异常的模组</source>
        <translation>Odd modules</translation>
    </message>
    <message>
        <source>模组</source>
        <translation>Module</translation>
    </message>
    <message>
        <source>u&apos;v&apos; 距离</source>
        <translation>Distance in u&apos;v&apos;</translation>
    </message>
    <message>
        <source>亮度</source>
        <translation>Luminance</translation>
    </message>
    <message>
        <source>还有 %1 个</source>
        <translation>%1 more</translation>
    </message>
</context>
<context>
    <name>CWriteProblem</name>
    <message>
        <source>发送器没有采用新的模式</source>
        <translation>the sender did not apply the new mode</translation>
    </message>
    <message>
        <source>发送器返回错误 %1</source>
        <translation>the sender returned error %1</translation>
    </message>
    <message>
        <source>没有写入 %1 的 EDID：%2。原来的模式仍然有效。
请检查发送器，然后重试。模拟的故障在“模拟”页关闭。</source>
        <translation>The EDID of %1 was not written: %2. The old mode is still in force.
Check the sender, then try again. The page &quot;Simulation&quot; switches simulated faults off.</translation>
    </message>
</context>
</TS>
