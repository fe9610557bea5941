<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>CEdidText</name>
    <message>
        <source>the pixel clock of %1 MHz is above 655.35 MHz; its low 16 bits are stored: %2 MHz</source>
        <translation>像素时钟 %1 MHz 超过 655.35 MHz，只存储它的低 16 位：%2 MHz</translation>
    </message>
    <message>
        <source>the pixel clock of %1 Hz is below the unit of 10 kHz; 0 is stored</source>
        <translation>像素时钟 %1 Hz 低于 10 kHz 的单位，存储为 0</translation>
    </message>
    <message>
        <source>the width %1 needs more than 12 bits; the block holds %2</source>
        <translation>宽度 %1 需要超过 12 位，块中是 %2</translation>
    </message>
    <message>
        <source>the height %1 needs more than 12 bits; the block holds %2</source>
        <translation>高度 %1 需要超过 12 位，块中是 %2</translation>
    </message>
    <message>
        <source>the vertical blanking %1 needs more than 12 bits; the block holds %2</source>
        <translation>垂直消隐 %1 需要超过 12 位，块中是 %2</translation>
    </message>
    <message>
        <source>the monitor name is longer than its 13 characters; the block holds &apos;%1&apos;</source>
        <translation>显示器名称超过 13 个字符，块中是“%1”</translation>
    </message>
    <message>
        <source>the pixel clock of %1 MHz is above the %2 MHz that the block declares</source>
        <translation>像素时钟 %1 MHz 超过块所声明的 %2 MHz</translation>
    </message>
    <message>
        <source>&apos;%1&apos; does not fit; give %2</source>
        <translation>“%1”不能写入；请给出%2</translation>
    </message>
    <message>
        <source>a number from %1 to %2</source>
        <translation> %1 到 %2 的数</translation>
    </message>
    <message>
        <source>a number from %1 to %2 in steps of %3</source>
        <translation> %1 到 %2 的数，以 %3 为步长</translation>
    </message>
    <message>
        <source>a number from 0 to %1, or 0x%2</source>
        <translation> 0 到 %1 或 0x%2 的数</translation>
    </message>
    <message>
        <source>a week from 1 to 54, 0 for none, or 255 for the year of the model</source>
        <translation> 1 到 54 的周，0 表示没有，255 表示型号年份</translation>
    </message>
    <message>
        <source>three letters A to Z</source>
        <translation>由 A 到 Z 的三个字母</translation>
    </message>
    <message>
        <source>%1 bytes of two hexadecimal digits each</source>
        <translation> %1 个字节，每个两位十六进制数字</translation>
    </message>
    <message>
        <source>WIDTHxHEIGHT@RATE with a width from 256 to 2288 in steps of 8, a shape of 16:10, 4:3, 5:4 or 16:9 and a rate from 60 to 123, or nothing</source>
        <translation>“宽x高@帧率”：宽 256 到 2288，以 8 为步长；宽高比 16:10、4:3、5:4 或 16:9；帧率 60 到 123；或者留空</translation>
    </message>
    <message>
        <source>WIDTHxHEIGHT@RATE of at most 4095x4095 and 655.35 MHz</source>
        <translation>“宽x高@帧率”，最大 4095x4095 和 655.35 MHz</translation>
    </message>
    <message>
        <source>WIDTHxHEIGHT@RATE of at most 65535x65535</source>
        <translation>“宽x高@帧率”，最大 65535x65535</translation>
    </message>
    <message>
        <source>this value follows from others</source>
        <translation>这个值由其他值得出</translation>
    </message>
    <message>
        <source>a text has 1 to 13 characters, and &apos;%1&apos; has %2</source>
        <translation>文本有 1 到 13 个字符，“%1”有 %2 个</translation>
    </message>
    <message>
        <source>&apos;%1&apos; holds other characters than printable ASCII</source>
        <translation>“%1”含有可打印 ASCII 以外的字符</translation>
    </message>
    <message>
        <source>&apos;%1&apos; ends in a blank</source>
        <translation>“%1”以空格结尾</translation>
    </message>
    <message>
        <source>entry %1 of &quot;bytes&quot; is no byte; give numbers from 0 to 255, or texts of two digits for each byte</source>
        <translation>“bytes”的第 %1 项不是字节；请给出 0 到 255 的数，或每个字节两位数字的文本</translation>
    </message>
    <message>
        <source>there is no list &quot;bytes&quot;; give the JSON that this program writes</source>
        <translation>没有列表“bytes”；请给出本程序写出的 JSON</translation>
    </message>
    <message>
        <source>the list &quot;edids&quot; is empty</source>
        <translation>列表“edids”是空的</translation>
    </message>
    <message>
        <source>an object with &quot;bytes&quot; is needed; give the JSON that this program writes</source>
        <translation>需要带有“bytes”的对象；请给出本程序写出的 JSON</translation>
    </message>
    <message>
        <source>line %1, column %2: %3</source>
        <translation>第 %1 行第 %2 列：%3</translation>
    </message>
    <message>
        <source>the text is longer than 8 MB; give the EDID alone</source>
        <translation>文本超过 8 MB；请只给出 EDID</translation>
    </message>
    <message>
        <source>the byte 0x%1</source>
        <translation>字节 0x%1</translation>
    </message>
    <message>
        <source>the offset is 0x%1, but there are 0x%2 bytes before it; give every line of the dump</source>
        <translation>偏移是 0x%1，但它之前有 0x%2 个字节；请给出转储的每一行</translation>
    </message>
    <message>
        <source>no offset with a colon; give every line as xxd writes it</source>
        <translation>没有带冒号的偏移；请按 xxd 的写法给出每一行</translation>
    </message>
    <message>
        <source>no offset; give every line as hexdump -C writes it</source>
        <translation>没有偏移；请按 hexdump -C 的写法给出每一行</translation>
    </message>
    <message>
        <source>there are no bytes; give an EDID of at least 128</source>
        <translation>没有字节；请给出至少 128 个字节的 EDID</translation>
    </message>
    <message>
        <source>there are more than 256 blocks; an EDID has at most so many</source>
        <translation>块多于 256 个；一个 EDID 最多有这么多</translation>
    </message>
    <message>
        <source>there are %1 bytes; an EDID has whole blocks of 128</source>
        <translation>有 %1 个字节；EDID 由 128 字节的整块组成</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is no whole number of bytes; write two digits for each</source>
        <translation>“%1”不是整数个字节；每个字节写两位数字</translation>
    </message>
    <message>
        <source>%1 is no hexadecimal digit</source>
        <translation>%1 不是十六进制数字</translation>
    </message>
    <message>
        <source>&apos;*&apos; has no line before it to repeat</source>
        <translation>“*”之前没有可以重复的行</translation>
    </message>
    <message>
        <source>&apos;%1&apos; stands on no line of its own</source>
        <translation>“%1”没有单独成行</translation>
    </message>
    <message>
        <source>no output has an EDID; give what &apos;xrandr --prop&apos; prints</source>
        <translation>没有一个输出带有 EDID；请给出 xrandr --prop 的输出</translation>
    </message>
</context>
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
