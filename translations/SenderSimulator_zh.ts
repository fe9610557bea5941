<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>CSimulatorText</name>
    <message>
        <source>nothing is called &quot;%1&quot;.</source>
        <translation>没有名为“%1”的项。</translation>
    </message>
    <message>
        <source>the file is not JSON: %1</source>
        <translation>文件不是 JSON：%1</translation>
    </message>
    <message>
        <source>the type %1 is given twice.</source>
        <translation>类型 %1 重复。</translation>
    </message>
    <message>
        <source>read</source>
        <translation>读取</translation>
    </message>
    <message>
        <source>write</source>
        <translation>写入</translation>
    </message>
    <message>
        <source>event</source>
        <translation>事件</translation>
    </message>
    <message>
        <source>No.</source>
        <translation>序号</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>时间</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>种类</translation>
    </message>
    <message>
        <source>Object</source>
        <translation>对象</translation>
    </message>
    <message>
        <source>Call</source>
        <translation>调用</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>结果</translation>
    </message>
    <message>
        <source>ms</source>
        <translation>毫秒</translation>
    </message>
    <message>
        <source>a whole number from %1 to %2</source>
        <translation>%1 到 %2 之间的整数</translation>
    </message>
    <message>
        <source>the value is %1, but must be %2.</source>
        <translation>值为 %1，但必须是%2。</translation>
    </message>
    <message>
        <source>true or false</source>
        <translation>true 或 false</translation>
    </message>
    <message>
        <source>a number from %1 to %2</source>
        <translation>%1 到 %2 之间的数</translation>
    </message>
    <message>
        <source>a text of at most %1 characters</source>
        <translation>最多 %1 个字符的文本</translation>
    </message>
    <message>
        <source>a size such as &quot;1920x1080&quot; with sides from %1 to %2</source>
        <translation>形如“1920x1080”的尺寸，边长在 %1 到 %2 之间</translation>
    </message>
    <message>
        <source>empty or %1 bytes in hexadecimal digits</source>
        <translation>空，或 %1 个字节的十六进制数字</translation>
    </message>
    <message>
        <source>the key &quot;%1&quot; is missing.</source>
        <translation>缺少键“%1”。</translation>
    </message>
    <message>
        <source>the key &quot;%1&quot; is not known here.</source>
        <translation>此处不认识键“%1”。</translation>
    </message>
    <message>
        <source>The file is left as it is. Correct the value, or start a new project; when that is saved under this name, the broken file is kept beside it.</source>
        <translation>文件保持原样。请更正该值，或新建工程；以此名称保存时，损坏的文件会保留在旁边。</translation>
    </message>
    <message>
        <source>Check that the file and its folder exist and that you may use them, or choose another place.</source>
        <translation>请检查文件及其文件夹是否存在、是否有权限，或选择别的位置。</translation>
    </message>
    <message>
        <source>The file cannot be read: %1</source>
        <translation>无法读取文件：%1</translation>
    </message>
    <message>
        <source>The file is too large for a project.</source>
        <translation>文件太大，不是工程。</translation>
    </message>
    <message>
        <source>The file is no project: its &quot;format&quot; is not &quot;%1&quot;.</source>
        <translation>文件不是工程：“format”不是“%1”。</translation>
    </message>
    <message>
        <source>The project has version %1; this program reads up to version %2.</source>
        <translation>工程的版本是 %1；本程序最多读取版本 %2。</translation>
    </message>
    <message>
        <source>Open it with the newer program that wrote it.</source>
        <translation>请用写入它的较新程序打开。</translation>
    </message>
    <message>
        <source>The file has no valid &quot;version&quot;.</source>
        <translation>文件没有有效的“version”。</translation>
    </message>
    <message>
        <source>The key &quot;%1&quot; is not known here.</source>
        <translation>此处不认识键“%1”。</translation>
    </message>
    <message>
        <source>The file holds no &quot;project&quot;.</source>
        <translation>文件中没有“project”。</translation>
    </message>
    <message>
        <source>The broken file in this place cannot be kept as %1, so it is not overwritten.</source>
        <translation>此处的损坏文件无法保留为 %1，因此不会被覆盖。</translation>
    </message>
    <message>
        <source>The file cannot be written: %1</source>
        <translation>无法写入文件：%1</translation>
    </message>
    <message>
        <source>The file is not JSON (%1, at byte %2).</source>
        <translation>文件不是 JSON（%1，第 %2 字节）。</translation>
    </message>
    <message>
        <source>Nothing was written. Correct the value and save again.</source>
        <translation>没有写入任何内容。请更正该值后重新保存。</translation>
    </message>
    <message>
        <source>the id %1 is given twice.</source>
        <translation>标识 %1 重复。</translation>
    </message>
    <message>
        <source>the interface %1 is given twice.</source>
        <translation>接口 %1 重复。</translation>
    </message>
    <message>
        <source>the value must be above every sender&apos;s id.</source>
        <translation>该值必须大于每个发送器的标识。</translation>
    </message>
    <message>
        <source>there is no sender with the index %1.</source>
        <translation>没有索引为 %1 的发送器。</translation>
    </message>
    <message>
        <source>an entry address(name)</source>
        <translation>形如“地址(名称)”的条目</translation>
    </message>
    <message>
        <source>the three lists must have the same length.</source>
        <translation>三个列表的长度必须相同。</translation>
    </message>
    <message>
        <source>an address such as 192.168.0.10</source>
        <translation>形如 192.168.0.10 的地址</translation>
    </message>
    <message>
        <source>The project has no file yet.</source>
        <translation>工程还没有文件。</translation>
    </message>
    <message>
        <source>Choose a file to save it to.</source>
        <translation>请选择保存的文件。</translation>
    </message>
    <message>
        <source>an array</source>
        <translation>数组</translation>
    </message>
    <message>
        <source>an object</source>
        <translation>对象</translation>
    </message>
    <message>
        <source>The project is saved, but not all background pictures could be copied.</source>
        <translation>工程已保存，但有背景图片未能复制。</translation>
    </message>
    <message>
        <source>Check that you may write to the folder, then choose the pictures anew.</source>
        <translation>请检查是否有权写入该文件夹，然后重新选择图片。</translation>
    </message>
    <message>
        <source>This is no regular file, so it holds no project.</source>
        <translation>这不是普通文件，因此不含工程。</translation>
    </message>
    <message>
        <source>failed</source>
        <translation>失败</translation>
    </message>
    <message>
        <source>failed %1</source>
        <translation>失败 %1</translation>
    </message>
    <message>
        <source>the key %1 is given twice.</source>
        <translation>键 %1 出现了两次。</translation>
    </message>
    <message>
        <source>the groups 512 and 768 must both be there or both be missing.</source>
        <translation>组 512 和 768 必须同时存在或同时缺少。</translation>
    </message>
</context>
</TS>
