<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>AlarmNotice</name>
    <message>
        <source>Alarm: %1</source>
        <translation>报警：%1</translation>
    </message>
    <message>
        <source>The limits rest</source>
        <translation>限值暂停</translation>
    </message>
</context>
<context>
    <name>Average</name>
    <message>
        <source>A&amp;verage</source>
        <translation>平均(&amp;V)</translation>
    </message>
    <message>
        <source>Averages the power of all shown curves</source>
        <translation>对所有显示曲线的功率取平均</translation>
    </message>
    <message>
        <source>The shown curves have no angle in common.</source>
        <translation>显示的曲线没有共同的角度。</translation>
    </message>
    <message>
        <source>Average</source>
        <translation>平均</translation>
    </message>
    <message>
        <source>Average of %1 curves</source>
        <translation>%1 条曲线的平均</translation>
    </message>
    <message>
        <source>Mean power of %1</source>
        <translation>%1 的平均功率</translation>
    </message>
</context>
<context>
    <name>Batch</name>
    <message>
        <source>The results cannot be written: %1</source>
        <translation>无法写出结果：%1</translation>
    </message>
    <message>
        <source>The folder cannot be made: %1</source>
        <translation>无法创建文件夹：%1</translation>
    </message>
    <message>
        <source>There is no curve &quot;%1&quot; among these: %2</source>
        <translation>以下曲线中没有&quot;%1&quot;：%2</translation>
    </message>
    <message>
        <source>The file could not be written, what was there is unchanged: %1: %2</source>
        <translation>无法写入文件，原有内容未改变：%1：%2</translation>
    </message>
</context>
<context>
    <name>ChartMenu</name>
    <message>
        <source>Copy</source>
        <translation>复制</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>粘贴</translation>
    </message>
    <message>
        <source>Clear Selection</source>
        <translation>取消选择</translation>
    </message>
    <message>
        <source>Add Marker</source>
        <translation>添加标记</translation>
    </message>
    <message>
        <source>Delete Marker</source>
        <translation>删除标记</translation>
    </message>
    <message>
        <source>Marker Table</source>
        <translation>标记表</translation>
    </message>
    <message>
        <source>Parameter Table</source>
        <translation>参数表</translation>
    </message>
    <message>
        <source>Import Graphics</source>
        <translation>导入曲线</translation>
    </message>
    <message>
        <source>Export Graphics As CSV</source>
        <translation>导出曲线为 CSV</translation>
    </message>
    <message>
        <source>Export Graphics As Image</source>
        <translation>导出图表为图像</translation>
    </message>
    <message>
        <source>Symmetry</source>
        <translation>镜像</translation>
    </message>
    <message>
        <source>Undo Symmetry</source>
        <translation>撤销镜像</translation>
    </message>
    <message>
        <source>Manager Graphics</source>
        <translation>曲线管理</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>缩放</translation>
    </message>
    <message>
        <source>Pan</source>
        <translation>平移</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>复位</translation>
    </message>
</context>
<context>
    <name>Compare</name>
    <message>
        <source>Comp&amp;are</source>
        <translation>比较(&amp;A)</translation>
    </message>
    <message>
        <source>Makes the difference of two curves, the selected one minus the other</source>
        <translation>生成两条曲线之差：所选曲线减另一条</translation>
    </message>
    <message>
        <source>%1 minus %2</source>
        <translation>%1 减 %2</translation>
    </message>
    <message>
        <source>The two curves have no angle in common.</source>
        <translation>两条曲线没有共同的角度。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; minus &quot;%2&quot;, at the angles of the first</source>
        <translation>&quot;%1&quot;减&quot;%2&quot;，取第一条的角度</translation>
    </message>
    <message>
        <source>; their frequencies differ</source>
        <translation>；两者频率不同</translation>
    </message>
    <message>
        <source>; within 20 dB below the peak: mean %1 dB, greatest %2 dB, RMS %3 dB</source>
        <translation>；峰值以下 20 dB 内：平均 %1 dB，最大 %2 dB，均方根 %3 dB</translation>
    </message>
    <message>
        <source>Compare</source>
        <translation>比较</translation>
    </message>
</context>
<context>
    <name>ConnectDialog</name>
    <message>
        <source>Dialog</source>
        <translation>对话框</translation>
    </message>
    <message>
        <source>Com</source>
        <translation>串口</translation>
    </message>
    <message>
        <source>Serial port of the instrument</source>
        <translation>连接仪器的串口</translation>
    </message>
    <message>
        <source>Serial port</source>
        <translation>串口</translation>
    </message>
    <message>
        <source>Baud rate</source>
        <translation>波特率</translation>
    </message>
    <message>
        <source>Baud rate that the instrument is set to, 1200 to 115200</source>
        <translation>与仪器设置一致的波特率，1200～115200</translation>
    </message>
    <message>
        <source>IP address</source>
        <translation>IP 地址</translation>
    </message>
    <message>
        <source>IP address of the instrument; its TCP port is always 5001</source>
        <translation>仪器的 IP 地址；TCP 端口固定为 5001</translation>
    </message>
    <message>
        <source>Look for serial ports once more</source>
        <translation>重新查找串口</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>刷新</translation>
    </message>
    <message>
        <source>Connect</source>
        <translation>连接</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>连接</translation>
    </message>
    <message>
        <source>1200</source>
        <translation>1200</translation>
    </message>
    <message>
        <source>2400</source>
        <translation>2400</translation>
    </message>
    <message>
        <source>4800</source>
        <translation>4800</translation>
    </message>
    <message>
        <source>9600</source>
        <translation>9600</translation>
    </message>
    <message>
        <source>14400</source>
        <translation>14400</translation>
    </message>
    <message>
        <source>19200</source>
        <translation>19200</translation>
    </message>
    <message>
        <source>38400</source>
        <translation>38400</translation>
    </message>
    <message>
        <source>57600</source>
        <translation>57600</translation>
    </message>
    <message>
        <source>115200</source>
        <translation>115200</translation>
    </message>
</context>
<context>
    <name>ConsolePanel</name>
    <message>
        <source>no folder is named</source>
        <translation>未指定文件夹</translation>
    </message>
    <message>
        <source>there is no such folder</source>
        <translation>没有这个文件夹</translation>
    </message>
    <message>
        <source>⚠ No rows since %1: %2</source>
        <translation>⚠ 自 %1 起未写入：%2</translation>
    </message>
    <message>
        <source>Last row: %1</source>
        <translation>最近一行：%1</translation>
    </message>
    <message>
        <source>No row yet</source>
        <translation>尚无记录</translation>
    </message>
</context>
<context>
    <name>CurveExchange</name>
    <message>
        <source>CSV(*.csv)</source>
        <translation>CSV(*.csv)</translation>
    </message>
    <message>
        <source>Export csv successfully</source>
        <translation>CSV 导出成功</translation>
    </message>
    <message>
        <source>Open file failed</source>
        <translation>打开文件失败</translation>
    </message>
    <message>
        <source>Write file failed</source>
        <translation>写入文件失败</translation>
    </message>
    <message>
        <source>Images(*.png *jpg)</source>
        <translation>图像(*.png *jpg)</translation>
    </message>
    <message>
        <source>Export image successfully</source>
        <translation>图像导出成功</translation>
    </message>
    <message>
        <source>The import file directory is empty</source>
        <translation>未选择要导入的文件</translation>
    </message>
    <message>
        <source>open file error: %1</source>
        <translation>打开文件出错：%1</translation>
    </message>
    <message>
        <source>Incorrect file format</source>
        <translation>文件格式不正确</translation>
    </message>
    <message>
        <source>No selected graphics can be exported</source>
        <translation>请先选中要导出的曲线</translation>
    </message>
    <message>
        <source>Save As</source>
        <translation>另存为</translation>
    </message>
    <message>
        <source>The export file directory is empty</source>
        <translation>未选择导出文件</translation>
    </message>
    <message>
        <source>Pasted curve</source>
        <translation>粘贴的曲线</translation>
    </message>
    <message>
        <source>The text is not a curve</source>
        <translation>文本不是曲线</translation>
    </message>
</context>
<context>
    <name>CurveFileReader</name>
    <message>
        <source>The file is empty.</source>
        <translation>文件为空。</translation>
    </message>
    <message>
        <source>%1: Incorrect file format. %2</source>
        <translation>%1：文件格式不正确。%2</translation>
    </message>
    <message>
        <source>This is a folder.</source>
        <translation>这是一个文件夹。</translation>
    </message>
    <message>
        <source>The file cannot be opened: %1</source>
        <translation>无法打开文件：%1</translation>
    </message>
    <message>
        <source>The file cannot be read: %1</source>
        <translation>无法读取文件：%1</translation>
    </message>
    <message>
        <source>%1: The file holds no point.</source>
        <translation>%1：文件中没有数据点。</translation>
    </message>
    <message>
        <source>rows with a field that is no number and was read as 0: %1.</source>
        <translation>含非数字字段、按 0 读入的行：%1。</translation>
    </message>
    <message>
        <source>rows left out because a value is not finite: %1.</source>
        <translation>数值不是有限数而略去的行：%1。</translation>
    </message>
    <message>
        <source>rows left out because they have fewer than two fields: %1.</source>
        <translation>字段少于两个而略去的行：%1。</translation>
    </message>
    <message>
        <source>Opening curves</source>
        <translation>打开曲线</translation>
    </message>
    <message>
        <source>Reading %1...</source>
        <translation>正在读取 %1……</translation>
    </message>
    <message>
        <source>The third line is not &quot;Angle,Power&quot;, and it is no pattern file of MSI, NSMA or NEC2.</source>
        <translation>第三行不是 &quot;Angle,Power&quot;，也不是 MSI、NSMA 或 NEC2 方向图文件。</translation>
    </message>
    <message>
        <source>%1: The text is encoded as %2, not as UTF-8.</source>
        <translation>%1：文本编码为 %2，而不是 UTF-8。</translation>
    </message>
    <message>
        <source>rows with more than two fields, of which the first two were read: %1. Decimal commas need semicolons, tabs or blanks between the fields.</source>
        <translation>多于两个字段、只读取了前两个字段的行数：%1。使用小数逗号时，字段之间须用分号、制表符或空格分隔。</translation>
    </message>
    <message>
        <source>Names</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>The names of %1 curves are taken:
%2</source>
        <translation>%1 条曲线的名称已被占用：
%2</translation>
    </message>
    <message>
        <source>&amp;Number All</source>
        <translation>全部编号(&amp;N)</translation>
    </message>
    <message>
        <source>&amp;Ask for Each</source>
        <translation>逐一询问(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Cancel All</source>
        <translation>全部取消(&amp;C)</translation>
    </message>
    <message>
        <source>Drawing %1...</source>
        <translation>正在绘制 %1……</translation>
    </message>
</context>
<context>
    <name>CurveHistory</name>
    <message>
        <source>Remove</source>
        <translation>移除</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>粘贴</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>重命名</translation>
    </message>
    <message>
        <source>Recolour</source>
        <translation>更改颜色</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>编辑</translation>
    </message>
</context>
<context>
    <name>CurveName</name>
    <message>
        <source>Warning</source>
        <translation>警告</translation>
    </message>
    <message>
        <source>Existing frequency!
 Please modify the name</source>
        <translation>频率名称已存在！
 请修改名称</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>A curve needs a name.</source>
        <translation>曲线需要名称。</translation>
    </message>
</context>
<context>
    <name>CurveTableModel</name>
    <message>
        <source>Pasted or dropped</source>
        <translation>粘贴或拖入</translation>
    </message>
    <message>
        <source>The frequency lies outside the loss table: the correction is extrapolated.</source>
        <translation>频率超出损耗表范围：修正值为外推所得。</translation>
    </message>
    <message>
        <source>Curve</source>
        <translation>曲线</translation>
    </message>
    <message>
        <source>Material</source>
        <translation>材料</translation>
    </message>
    <message>
        <source>Points</source>
        <translation>点数</translation>
    </message>
    <message>
        <source>There is another curve called &quot;%1&quot;.</source>
        <translation>已有名为“%1”的曲线。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no frequency: write 2450 for 2450 MHz, or 2.45 GHz.</source>
        <translation>“%1”不是频率：2450 MHz 请输入 2450，也可输入 2.45 GHz。</translation>
    </message>
    <message>
        <source>Frequency
(MHz)</source>
        <translation>频率
(MHz)</translation>
    </message>
    <message>
        <source>Loss
correction</source>
        <translation>损耗
修正</translation>
    </message>
    <message>
        <source>A curve needs a name.</source>
        <translation>曲线需要名称。</translation>
    </message>
</context>
<context>
    <name>CutDialog</name>
    <message>
        <source>Open %1</source>
        <translation>打开 %1</translation>
    </message>
    <message>
        <source>total</source>
        <translation>总场</translation>
    </message>
    <message>
        <source>vertical</source>
        <translation>垂直</translation>
    </message>
    <message>
        <source>horizontal</source>
        <translation>水平</translation>
    </message>
    <message>
        <source>&amp;All</source>
        <translation>全选(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;None</source>
        <translation>全不选(&amp;N)</translation>
    </message>
    <message>
        <source>The file holds %1 cuts.</source>
        <translation>文件包含 %1 个切面。</translation>
    </message>
    <message>
        <source>&amp;Field:</source>
        <translation>场分量(&amp;F)：</translation>
    </message>
</context>
<context>
    <name>EditActions</name>
    <message>
        <source>&amp;Undo %1</source>
        <translation>撤销%1(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>撤销(&amp;U)</translation>
    </message>
    <message>
        <source>Re&amp;do %1</source>
        <translation>重做%1(&amp;D)</translation>
    </message>
    <message>
        <source>Re&amp;do</source>
        <translation>重做(&amp;D)</translation>
    </message>
    <message>
        <source>There is no curve on the clipboard.</source>
        <translation>剪贴板中没有曲线。</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>粘贴</translation>
    </message>
    <message>
        <source>The parameter table is on the clipboard.</source>
        <translation>参数表已复制到剪贴板。</translation>
    </message>
    <message>
        <source>Pasted curve</source>
        <translation>粘贴的曲线</translation>
    </message>
</context>
<context>
    <name>Envelope</name>
    <message>
        <source>&amp;Envelope</source>
        <translation>包络(&amp;E)</translation>
    </message>
    <message>
        <source>Makes the greatest and the least level of all shown curves</source>
        <translation>生成所有显示曲线的最大和最小电平</translation>
    </message>
    <message>
        <source>Envelope</source>
        <translation>包络</translation>
    </message>
    <message>
        <source>Maximum of %1 curves</source>
        <translation>%1 条曲线的最大值</translation>
    </message>
    <message>
        <source>Greatest level of %1</source>
        <translation>%1 的最大电平</translation>
    </message>
    <message>
        <source>Minimum of %1 curves</source>
        <translation>%1 条曲线的最小值</translation>
    </message>
    <message>
        <source>Least level of %1</source>
        <translation>%1 的最小电平</translation>
    </message>
</context>
<context>
    <name>ExportDialog</name>
    <message>
        <source>none</source>
        <translation>无</translation>
    </message>
    <message>
        <source>Export Pattern</source>
        <translation>导出方向图</translation>
    </message>
    <message>
        <source>MSI or Planet</source>
        <translation>MSI 或 Planet</translation>
    </message>
    <message>
        <source>NSMA (WG16.99.050)</source>
        <translation>NSMA (WG16.99.050)</translation>
    </message>
    <message>
        <source>NEC2 listing</source>
        <translation>NEC2 列表</translation>
    </message>
    <message>
        <source>The curves go out as they stand; MSI takes whole circles, on whole degrees. Edit - Mirror Curve turns the sense of the angles.</source>
        <translation>曲线按原样写出；MSI 需要完整圆周，并按整数度采样。“编辑 - 镜像曲线”可反转角度方向。</translation>
    </message>
    <message>
        <source>&amp;Format:</source>
        <translation>格式(&amp;F)：</translation>
    </message>
    <message>
        <source>&amp;Horizontal cut:</source>
        <translation>水平切面(&amp;H)：</translation>
    </message>
    <message>
        <source>&amp;Vertical cut:</source>
        <translation>垂直切面(&amp;V)：</translation>
    </message>
</context>
<context>
    <name>GainByComparison</name>
    <message>
        <source>&amp;Gain by Comparison...</source>
        <translation>比较法求增益(&amp;G)...</translation>
    </message>
    <message>
        <source>Turns the selected curve into dBi by a reference antenna of known gain</source>
        <translation>用已知增益的参考天线把所选曲线换算为 dBi</translation>
    </message>
    <message>
        <source>%1, dBi</source>
        <translation>%1，dBi</translation>
    </message>
    <message>
        <source>Gain of &quot;%1&quot; by comparison with &quot;%2&quot;: G = G_ref + P - P_ref + L - L_ref with G_ref %3 dBi, P_ref %4 dBm, L %5 dB, L_ref %6 dB</source>
        <translation>“%1”与“%2”比较所得增益：G = G_ref + P - P_ref + L - L_ref，其中 G_ref %3 dBi，P_ref %4 dBm，L %5 dB，L_ref %6 dB</translation>
    </message>
    <message>
        <source>; their frequencies differ</source>
        <translation>；两者频率不同</translation>
    </message>
    <message>
        <source>Gain by Comparison</source>
        <translation>比较法求增益</translation>
    </message>
    <message>
        <source>&amp;Reference:</source>
        <translation>参考曲线(&amp;R)：</translation>
    </message>
    <message>
        <source>Its &amp;gain:</source>
        <translation>其增益(&amp;G)：</translation>
    </message>
    <message>
        <source>The gain of the reference antenna at this frequency</source>
        <translation>参考天线在该频率的增益</translation>
    </message>
    <message>
        <source>Its &amp;level:</source>
        <translation>其电平(&amp;L)：</translation>
    </message>
    <message>
        <source>Measured where the reference looks at the source: its peak</source>
        <translation>参考天线对准信号源时的测量值：其峰值</translation>
    </message>
    <message>
        <source>Lo&amp;ss:</source>
        <translation>损耗(&amp;S)：</translation>
    </message>
    <message>
        <source>Of cables and attenuators when the antenna was measured</source>
        <translation>测量被测天线时电缆和衰减器的损耗</translation>
    </message>
    <message>
        <source>Loss, re&amp;ference:</source>
        <translation>参考损耗(&amp;F)：</translation>
    </message>
    <message>
        <source>Of cables and attenuators when the reference was measured</source>
        <translation>测量参考天线时电缆和衰减器的损耗</translation>
    </message>
</context>
<context>
    <name>GraphicsBase</name>
    <message>
        <source>Last %1 minutes</source>
        <translation>最近 %1 分钟</translation>
    </message>
    <message>
        <source>Power[dBm]</source>
        <translation>功率[dBm]</translation>
    </message>
    <message>
        <source>Please select the target graph</source>
        <translation>请先选中目标曲线</translation>
    </message>
    <message>
        <source>Chart</source>
        <translation>图表</translation>
    </message>
</context>
<context>
    <name>KeyboardSplitter</name>
    <message>
        <source>Border between panes, moved with the arrow keys</source>
        <translation>窗格之间的边界，用方向键移动</translation>
    </message>
</context>
<context>
    <name>LimitWatch</name>
    <message>
        <source>above %1</source>
        <translation>高于 %1</translation>
    </message>
    <message>
        <source>below %1</source>
        <translation>低于 %1</translation>
    </message>
</context>
<context>
    <name>LimitsPanel</name>
    <message>
        <source>&amp;Upper limit</source>
        <translation>上限(&amp;U)</translation>
    </message>
    <message>
        <source>Upper limit</source>
        <translation>上限</translation>
    </message>
    <message>
        <source>Lower limit</source>
        <translation>下限</translation>
    </message>
    <message>
        <source>An alarm ends once the level is back by as much</source>
        <translation>电平回到限值内这么多时报警结束</translation>
    </message>
    <message>
        <source>So many readings beyond a limit, one after the other, are an alarm</source>
        <translation>连续这么多次读数超限即报警</translation>
    </message>
    <message>
        <source>L&amp;atched</source>
        <translation>锁存(&amp;A)</translation>
    </message>
    <message>
        <source>An alarm stays until it is acknowledged</source>
        <translation>报警保持到确认为止</translation>
    </message>
    <message>
        <source>Ac&amp;knowledge</source>
        <translation>确认(&amp;K)</translation>
    </message>
    <message>
        <source>No limits are watched.</source>
        <translation>未监视限值。</translation>
    </message>
    <message>
        <source>The lower limit must lie below the upper one.</source>
        <translation>下限必须低于上限。</translation>
    </message>
    <message>
        <source>The limits rest during the relative measurement.</source>
        <translation>相对测量期间限值暂停。</translation>
    </message>
    <message>
        <source>No reading.</source>
        <translation>无读数。</translation>
    </message>
    <message>
        <source>Inside the limits.</source>
        <translation>在限值内。</translation>
    </message>
    <message>
        <source>Above the upper limit.</source>
        <translation>高于上限。</translation>
    </message>
    <message>
        <source>Below the lower limit.</source>
        <translation>低于下限。</translation>
    </message>
    <message>
        <source>Alarm: %1</source>
        <translation>报警：%1</translation>
    </message>
    <message>
        <source>Lo&amp;wer limit</source>
        <translation>下限(&amp;W)</translation>
    </message>
    <message>
        <source>Hys&amp;teresis</source>
        <translation>回差(&amp;T)</translation>
    </message>
    <message>
        <source>Readings i&amp;n a row</source>
        <translation>连续读数(&amp;N)</translation>
    </message>
</context>
<context>
    <name>LineEdit</name>
    <message>
        <source>Range:%1-%2</source>
        <translation>范围：%1-%2</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>数值</translation>
    </message>
</context>
<context>
    <name>LinkSession</name>
    <message>
        <source>Connecting to %1 …</source>
        <translation>正在连接 %1 …</translation>
    </message>
    <message>
        <source>Waiting for the identity …</source>
        <translation>正在等待设备标识 …</translation>
    </message>
    <message>
        <source>Waiting for the frequency …</source>
        <translation>正在等待频率 …</translation>
    </message>
    <message>
        <source>Waiting for the average count …</source>
        <translation>正在等待平均次数 …</translation>
    </message>
    <message>
        <source>Waiting for the relative state …</source>
        <translation>正在等待相对测量状态 …</translation>
    </message>
    <message>
        <source>Waiting for the offset …</source>
        <translation>正在等待偏置 …</translation>
    </message>
    <message>
        <source>Waiting for the power unit …</source>
        <translation>正在等待功率单位 …</translation>
    </message>
    <message>
        <source>The connection to the instrument is lost.</source>
        <translation>与仪器的连接已断开。</translation>
    </message>
</context>
<context>
    <name>ListChart</name>
    <message>
        <source>&amp;Title</source>
        <translation>标题(&amp;T)</translation>
    </message>
    <message>
        <source>Title of the charts, of exported curves and of the report</source>
        <translation>图表、导出曲线及报告的标题</translation>
    </message>
    <message>
        <source>Title of the charts</source>
        <translation>图表标题</translation>
    </message>
    <message>
        <source>Levels from</source>
        <translation>电平范围</translation>
    </message>
    <message>
        <source>Lowest level shown, dB</source>
        <translation>显示的最低电平，dB</translation>
    </message>
    <message>
        <source>to</source>
        <translation>至</translation>
    </message>
    <message>
        <source>Highest level shown, dB</source>
        <translation>显示的最高电平，dB</translation>
    </message>
    <message>
        <source>dB</source>
        <translation>dB</translation>
    </message>
    <message>
        <source>Chooses the ranges of both charts from the curves</source>
        <translation>按曲线数据设定两个图表的显示范围</translation>
    </message>
    <message>
        <source>&amp;Fit to data</source>
        <translation>适应数据(&amp;F)</translation>
    </message>
    <message>
        <source>Curves</source>
        <translation>曲线</translation>
    </message>
    <message>
        <source>Points of the curves</source>
        <translation>曲线数据点</translation>
    </message>
    <message>
        <source>Pattern parameters</source>
        <translation>方向图参数</translation>
    </message>
    <message>
        <source>Textbook definitions, apart from the pattern parameters</source>
        <translation>按教科书定义计算，与方向图参数相互独立</translation>
    </message>
    <message>
        <source>Supplementary</source>
        <translation>补充参数</translation>
    </message>
    <message>
        <source>Supplementary figures by curve</source>
        <translation>各曲线的补充参数</translation>
    </message>
    <message>
        <source>Polar chart</source>
        <translation>极坐标图</translation>
    </message>
    <message>
        <source>Cartesian chart</source>
        <translation>直角坐标图</translation>
    </message>
    <message>
        <source>Unnamed curve</source>
        <translation>未命名曲线</translation>
    </message>
    <message>
        <source>Radiation patterns</source>
        <translation>辐射方向图</translation>
    </message>
    <message>
        <source>Curve</source>
        <translation>曲线</translation>
    </message>
    <message>
        <source>The lowest level has to be below the highest one.</source>
        <translation>最低电平必须小于最高电平。</translation>
    </message>
    <message>
        <source>Angle [°]</source>
        <translation>角度 [°]</translation>
    </message>
    <message>
        <source>Level [dB]</source>
        <translation>电平 [dB]</translation>
    </message>
    <message>
        <source>Nulls from</source>
        <translation>零点不小于</translation>
    </message>
    <message>
        <source>Least prominence of a null, dB</source>
        <translation>零点的最小深度，dB</translation>
    </message>
    <message>
        <source>A minimum is a null when the level rises by at least this much on both of its sides</source>
        <translation>两侧电平至少回升这么多的极小值才算零点</translation>
    </message>
    <message>
        <source>Open a file (Ctrl+O), drop files here, paste two columns of numbers, or begin with File, Open Samples.</source>
        <translation>打开文件（Ctrl+O）、将文件拖放到此处、粘贴两列数字，或从“文件”&gt;“打开示例”开始。</translation>
    </message>
</context>
<context>
    <name>LoadMask</name>
    <message>
        <source>&amp;Load Mask...</source>
        <translation>载入限值掩模(&amp;L)...</translation>
    </message>
    <message>
        <source>Draws a limit line from a file of angles and levels; the report judges by it</source>
        <translation>由角度和电平文件绘制限值线，报告据此判定</translation>
    </message>
    <message>
        <source>Load Mask</source>
        <translation>载入限值掩模</translation>
    </message>
    <message>
        <source>Masks (*.csv *.txt);;All files (*)</source>
        <translation>限值掩模 (*.csv *.txt);;所有文件 (*)</translation>
    </message>
    <message>
        <source>The mask cannot be read: %1</source>
        <translation>无法读取限值掩模：%1</translation>
    </message>
    <message>
        <source>A limit that curves are to stay below</source>
        <translation>曲线应低于的限值</translation>
    </message>
    <message>
        <source>Mask %1</source>
        <translation>掩模 %1</translation>
    </message>
</context>
<context>
    <name>LoadingDialog</name>
    <message>
        <source>Dialog</source>
        <translation>对话框</translation>
    </message>
    <message>
        <source>%1,waiting...%2 s</source>
        <translation>正在%1，请稍候……%2 s</translation>
    </message>
</context>
<context>
    <name>LossActions</name>
    <message>
        <source>Load Loss Table</source>
        <translation>载入损耗表</translation>
    </message>
    <message>
        <source>Loss tables (*.csv);;All files (*)</source>
        <translation>损耗表 (*.csv);;所有文件 (*)</translation>
    </message>
    <message>
        <source>The loss table could not be loaded: %1
%2</source>
        <translation>无法载入损耗表：%1
%2</translation>
    </message>
    <message>
        <source>Loss table loaded: %1</source>
        <translation>已载入损耗表：%1</translation>
    </message>
    <message>
        <source>Please enter the frequency of &quot;%1&quot; in the list of curves first.</source>
        <translation>请先在曲线列表中输入“%1”的频率。</translation>
    </message>
    <message>
        <source>The loss table cannot tell the loss at %1 MHz.</source>
        <translation>损耗表无法给出 %1 MHz 处的损耗。</translation>
    </message>
    <message>
        <source>up-link %1%2 dB</source>
        <translation>上行 %1%2 dB</translation>
    </message>
    <message>
        <source>down-link %1%2 dB</source>
        <translation>下行 %1%2 dB</translation>
    </message>
    <message>
        <source>%1, up-link</source>
        <translation>%1，上行</translation>
    </message>
    <message>
        <source>%1, down-link</source>
        <translation>%1，下行</translation>
    </message>
    <message>
        <source>%1 (extrapolated)</source>
        <translation>%1（外推）</translation>
    </message>
    <message>
        <source>Correct Up-link</source>
        <translation>上行校正</translation>
    </message>
    <message>
        <source>Correct Down-link</source>
        <translation>下行校正</translation>
    </message>
</context>
<context>
    <name>LossCorrection</name>
    <message>
        <source>This is a folder.</source>
        <translation>这是一个文件夹。</translation>
    </message>
    <message>
        <source>The file cannot be opened: %1</source>
        <translation>无法打开文件：%1</translation>
    </message>
    <message>
        <source>The table has no &quot;upside&quot; and no &quot;downside&quot; row.</source>
        <translation>表中没有“upside”行，也没有“downside”行。</translation>
    </message>
    <message>
        <source>This is no loss table: it has no header row with &quot;category&quot;.</source>
        <translation>这不是损耗表：缺少含“category”的表头行。</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>MZ6218 Power Meter</source>
        <translation>MZ6218 功率计</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>连接</translation>
    </message>
    <message>
        <source>Serial port of the instrument</source>
        <translation>连接仪器的串口</translation>
    </message>
    <message>
        <source>Serial port</source>
        <translation>串口</translation>
    </message>
    <message>
        <source>Open the serial port at 115200 baud</source>
        <translation>以 115200 波特率打开串口</translation>
    </message>
    <message>
        <source>Open the serial port</source>
        <translation>打开串口</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>打开</translation>
    </message>
    <message>
        <source>Close the serial port</source>
        <translation>关闭串口</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>Frequency(1KHz~40GHz)</source>
        <translation>频率(1KHz~40GHz)</translation>
    </message>
    <message>
        <source>Measurement frequency, 1 kHz to 40 GHz; Enter sends it</source>
        <translation>测量频率，1 kHz～40 GHz；按 Enter 键发送</translation>
    </message>
    <message>
        <source>Frequency</source>
        <translation>频率</translation>
    </message>
    <message>
        <source>Unit of the frequency</source>
        <translation>频率单位</translation>
    </message>
    <message>
        <source>Send the frequency to the instrument</source>
        <translation>将频率发送到仪器</translation>
    </message>
    <message>
        <source>Set the frequency</source>
        <translation>设置频率</translation>
    </message>
    <message>
        <source>Set</source>
        <translation>设置</translation>
    </message>
    <message>
        <source>Offset(-100~100)</source>
        <translation>偏置(-100~100)</translation>
    </message>
    <message>
        <source>Offset added to the power, -100 to 100 dB; Enter sends it</source>
        <translation>叠加到功率上的偏置，-100～100 dB；按 Enter 键发送</translation>
    </message>
    <message>
        <source>Offset in dB</source>
        <translation>偏置，dB</translation>
    </message>
    <message>
        <source>dB</source>
        <translation>dB</translation>
    </message>
    <message>
        <source>Send the offset to the instrument</source>
        <translation>将偏置发送到仪器</translation>
    </message>
    <message>
        <source>Set the offset</source>
        <translation>设置偏置</translation>
    </message>
    <message>
        <source>Average count</source>
        <translation>平均次数</translation>
    </message>
    <message>
        <source>Readings averaged, 1 to 1024; Enter sends the count</source>
        <translation>参与平均的读数个数，1～1024；按 Enter 键发送</translation>
    </message>
    <message>
        <source>Send the average count to the instrument</source>
        <translation>将平均次数发送到仪器</translation>
    </message>
    <message>
        <source>Set the average count</source>
        <translation>设置平均次数</translation>
    </message>
    <message>
        <source>Measurement of relative state</source>
        <translation>相对测量</translation>
    </message>
    <message>
        <source>Measure relative to the present power; once more takes a new reference</source>
        <translation>以当前功率为参考进行相对测量；再次点击则更新参考值</translation>
    </message>
    <message>
        <source>ON / Update</source>
        <translation>开启 / 更新</translation>
    </message>
    <message>
        <source>Measure the power itself</source>
        <translation>测量绝对功率</translation>
    </message>
    <message>
        <source>OFF</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>Power unit</source>
        <translation>功率单位</translation>
    </message>
    <message>
        <source>Show the power in dBm</source>
        <translation>以 dBm 显示功率</translation>
    </message>
    <message>
        <source>dBm</source>
        <translation>dBm</translation>
    </message>
    <message>
        <source>Show the power in watts</source>
        <translation>以瓦特显示功率</translation>
    </message>
    <message>
        <source>Watt</source>
        <translation>瓦特</translation>
    </message>
    <message>
        <source>System</source>
        <translation>系统</translation>
    </message>
    <message>
        <source>Zero the sensor (F7); takes up to 30 seconds</source>
        <translation>传感器校零 (F7)，最长 30 秒</translation>
    </message>
    <message>
        <source>Set Zero</source>
        <translation>校零</translation>
    </message>
    <message>
        <source>Calibrate the sensor (F8); takes up to 30 seconds</source>
        <translation>传感器校准 (F8)，最长 30 秒</translation>
    </message>
    <message>
        <source>Calibration</source>
        <translation>校准</translation>
    </message>
    <message>
        <source>Chart</source>
        <translation>图表</translation>
    </message>
    <message>
        <source>Time that the chart shows, 1 to 10 minutes</source>
        <translation>图表显示的时间长度，1～10 分钟</translation>
    </message>
    <message>
        <source>Period of the chart in minutes</source>
        <translation>图表时长，分钟</translation>
    </message>
    <message>
        <source>Minutes</source>
        <translation>分钟</translation>
    </message>
    <message>
        <source>Show that time on the chart</source>
        <translation>按此时长显示图表</translation>
    </message>
    <message>
        <source>Set the period of the chart</source>
        <translation>设置图表时长</translation>
    </message>
    <message>
        <source>Empty the chart and start it again (F5)</source>
        <translation>清空图表并重新绘制 (F5)</translation>
    </message>
    <message>
        <source>Replot</source>
        <translation>重绘</translation>
    </message>
    <message>
        <source>Data Record</source>
        <translation>数据记录</translation>
    </message>
    <message>
        <source>Time between two records, 1 to 30 minutes; a new one counts from Reset or the next connection</source>
        <translation>记录间隔，1～30 分钟；新值自点击“重置”或下次连接起生效</translation>
    </message>
    <message>
        <source>Interval of the records in minutes</source>
        <translation>记录间隔，分钟</translation>
    </message>
    <message>
        <source>Record now (F6) and count the interval from here</source>
        <translation>立即记录一次 (F6) 并重新计时</translation>
    </message>
    <message>
        <source>Record now and restart the interval</source>
        <translation>立即记录并重新计时</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>重置</translation>
    </message>
    <message>
        <source>Folder of the records</source>
        <translation>记录文件夹</translation>
    </message>
    <message>
        <source>Choose the folder of the records</source>
        <translation>选择记录文件夹</translation>
    </message>
    <message>
        <source>Power</source>
        <translation>功率</translation>
    </message>
    <message>
        <source>Power in dBm</source>
        <translation>功率，dBm</translation>
    </message>
    <message>
        <source>Power in the instrument&apos;s unit</source>
        <translation>功率，仪器当前单位</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>文件(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Communication</source>
        <translation>通信(&amp;C)</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>工具</translation>
    </message>
    <message>
        <source>Tool bar</source>
        <translation>工具栏</translation>
    </message>
    <message>
        <source>Connect</source>
        <translation>连接</translation>
    </message>
    <message>
        <source>Disconnect</source>
        <translation>断开</translation>
    </message>
    <message>
        <source>Communication by Serial</source>
        <translation>串口通信</translation>
    </message>
    <message>
        <source>Communication by LAN</source>
        <translation>LAN 通信</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>开始</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>停止</translation>
    </message>
    <message>
        <source>IP Config</source>
        <translation>IP 配置</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>导出</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>导入</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>退出</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>帮助</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>注意</translation>
    </message>
    <message>
        <source>Info</source>
        <translation>信息</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>警告</translation>
    </message>
    <message>
        <source>Set zero</source>
        <translation>校零</translation>
    </message>
    <message>
        <source>%1 time out!</source>
        <translation>%1超时！</translation>
    </message>
    <message>
        <source>Set zero success!</source>
        <translation>校零成功！</translation>
    </message>
    <message>
        <source>Set zero failed!</source>
        <translation>校零失败！</translation>
    </message>
    <message>
        <source>Calibration success!</source>
        <translation>校准成功！</translation>
    </message>
    <message>
        <source>Calibration failed!</source>
        <translation>校准失败！</translation>
    </message>
    <message>
        <source>Last %1 minutes</source>
        <translation>最近 %1 分钟</translation>
    </message>
    <message>
        <source>Save Dir</source>
        <translation>选择保存目录</translation>
    </message>
    <message>
        <source>No directory selected.</source>
        <translation>未选择目录。</translation>
    </message>
    <message>
        <source>%1/%2</source>
        <translation>%1/%2</translation>
    </message>
    <message>
        <source>Relative measurement on</source>
        <translation>相对测量开启</translation>
    </message>
    <message>
        <source>Relative measurement off</source>
        <translation>相对测量关闭</translation>
    </message>
    <message>
        <source>Power unit dBm</source>
        <translation>功率单位 dBm</translation>
    </message>
    <message>
        <source>Power unit watt</source>
        <translation>功率单位 瓦特</translation>
    </message>
    <message>
        <source>&amp;Language</source>
        <translation>语言(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>帮助(&amp;H)</translation>
    </message>
    <message>
        <source>&amp;Manual</source>
        <translation>手册(&amp;M)</translation>
    </message>
    <message>
        <source>Records are not written: %1</source>
        <translation>记录未写入：%1</translation>
    </message>
    <message>
        <source>%1 was not confirmed. Polling rests until it is set again or the link is opened anew.</source>
        <translation>%1未得到确认。轮询已暂停，直到重新设置或重新打开连接。</translation>
    </message>
    <message>
        <source>No records can be written to &quot;%1&quot;: %2. The folder stays as it was.</source>
        <translation>无法将记录写入“%1”：%2。文件夹保持不变。</translation>
    </message>
    <message>
        <source>%1 was not confirmed.</source>
        <translation>%1未得到确认。</translation>
    </message>
</context>
<context>
    <name>ManagerGraph</name>
    <message>
        <source>Manage Graph</source>
        <translation>曲线管理</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>编号</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>描述</translation>
    </message>
    <message>
        <source>State</source>
        <translation>状态</translation>
    </message>
    <message>
        <source>Line Color</source>
        <translation>线条颜色</translation>
    </message>
    <message>
        <source>Line Width</source>
        <translation>线宽</translation>
    </message>
    <message>
        <source>Curves</source>
        <translation>曲线</translation>
    </message>
    <message>
        <source>Default</source>
        <translation>恢复默认</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>Double-click to edit</source>
        <translation>双击编辑</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>显示</translation>
    </message>
    <message>
        <source>Show %1</source>
        <translation>显示 %1</translation>
    </message>
    <message>
        <source>Line width of %1</source>
        <translation>%1 的线宽</translation>
    </message>
    <message>
        <source>Restore state, color and width as they were when this window was opened</source>
        <translation>将状态、颜色和线宽恢复为打开本窗口时的设置</translation>
    </message>
    <message>
        <source>Choose the line color</source>
        <translation>选择线条颜色</translation>
    </message>
    <message>
        <source>Line color of %1</source>
        <translation>%1 的线条颜色</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
</context>
<context>
    <name>Manual</name>
    <message>
        <source>The manual is the file help.pdf beside the program, in %1. It is not there.</source>
        <translation>手册是程序所在文件夹 %1 中的文件 help.pdf，但该文件不存在。</translation>
    </message>
    <message>
        <source>No program opens the manual. It is the file %1.</source>
        <translation>没有可打开手册的程序。手册文件是 %1。</translation>
    </message>
    <message>
        <source>Manual</source>
        <translation>手册</translation>
    </message>
</context>
<context>
    <name>MarkTable</name>
    <message>
        <source>Markers</source>
        <translation>标记</translation>
    </message>
    <message>
        <source>Marker</source>
        <translation>标记</translation>
    </message>
    <message>
        <source>X</source>
        <translation>X</translation>
    </message>
    <message>
        <source>Y</source>
        <translation>Y</translation>
    </message>
    <message>
        <source>Angle</source>
        <translation>角度</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>电平</translation>
    </message>
</context>
<context>
    <name>Mask</name>
    <message>
        <source>Not an angle and a level.</source>
        <translation>不是角度和电平。</translation>
    </message>
    <message>
        <source>The angles do not ascend.</source>
        <translation>角度没有递增。</translation>
    </message>
    <message>
        <source>A mask takes two rows of an angle and a level at least.</source>
        <translation>限值掩模至少需要两行角度和电平。</translation>
    </message>
</context>
<context>
    <name>MeasureDialog</name>
    <message>
        <source>Resume Measuring a Pattern</source>
        <translation>继续测量方向图</translation>
    </message>
    <message>
        <source>Measure Pattern</source>
        <translation>测量方向图</translation>
    </message>
    <message>
        <source>Devices</source>
        <translation>设备</translation>
    </message>
    <message>
        <source>Angles</source>
        <translation>角度</translation>
    </message>
    <message>
        <source>Readings</source>
        <translation>读数</translation>
    </message>
    <message>
        <source>Curve</source>
        <translation>曲线</translation>
    </message>
    <message>
        <source>Check first: nothing moves before both devices have answered.</source>
        <translation>请先检查：两台设备都应答之前，转台不会转动。</translation>
    </message>
    <message>
        <source>What the devices told</source>
        <translation>设备的应答</translation>
    </message>
    <message>
        <source>Chec&amp;k</source>
        <translation>检查(&amp;K)</translation>
    </message>
    <message>
        <source>&amp;Start</source>
        <translation>开始(&amp;S)</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>LAN</source>
        <translation>局域网</translation>
    </message>
    <message>
        <source>Serial port</source>
        <translation>串口</translation>
    </message>
    <message>
        <source>&amp;Meter:</source>
        <translation>功率计(&amp;M)：</translation>
    </message>
    <message>
        <source>HOST or HOST:PORT; with a serial port PORT or PORT:BAUD</source>
        <translation>HOST 或 HOST:PORT；串口时为 PORT 或 PORT:BAUD</translation>
    </message>
    <message>
        <source>HOST or HOST:PORT of rotctld, port 4533 unless given</source>
        <translation>rotctld 的 HOST 或 HOST:PORT，默认端口 4533</translation>
    </message>
    <message>
        <source>&amp;From:</source>
        <translation>起始(&amp;F)：</translation>
    </message>
    <message>
        <source>&amp;To:</source>
        <translation>终止(&amp;T)：</translation>
    </message>
    <message>
        <source>Ste&amp;p:</source>
        <translation>步长(&amp;P)：</translation>
    </message>
    <message>
        <source>&amp;Zero at:</source>
        <translation>零点(&amp;Z)：</translation>
    </message>
    <message>
        <source>The table&apos;s angle at which the antenna&apos;s front looks at the source</source>
        <translation>天线正面对准信号源时转台的角度</translation>
    </message>
    <message>
        <source>S&amp;ense:</source>
        <translation>方向(&amp;E)：</translation>
    </message>
    <message>
        <source>Whether the curve&apos;s angle grows as the table&apos;s does</source>
        <translation>曲线角度是否与转台角度同向增大</translation>
    </message>
    <message>
        <source>As the table</source>
        <translation>与转台相同</translation>
    </message>
    <message>
        <source>Opposite</source>
        <translation>与转台相反</translation>
    </message>
    <message>
        <source>Turn &amp;back at the end</source>
        <translation>结束后转回(&amp;B)</translation>
    </message>
    <message>
        <source>From the table&apos;s arrival to the first reading</source>
        <translation>从转台到位到第一次读数的时间</translation>
    </message>
    <message>
        <source>Rea&amp;dings a point:</source>
        <translation>每点读数(&amp;D)：</translation>
    </message>
    <message>
        <source>Their mean is taken in milliwatts; one more is thrown away first</source>
        <translation>按毫瓦取平均；此前先丢弃一个读数</translation>
    </message>
    <message>
        <source>Fl&amp;oor:</source>
        <translation>底噪(&amp;O)：</translation>
    </message>
    <message>
        <source>Level with the source off</source>
        <translation>关闭信号源时的电平</translation>
    </message>
    <message>
        <source>Level with the source off; points within 10 dB of it are marked</source>
        <translation>关闭信号源时的电平；与其相差 10 dB 以内的点会被标记</translation>
    </message>
    <message>
        <source>T&amp;itle:</source>
        <translation>标题(&amp;I)：</translation>
    </message>
    <message>
        <source>The name of the curve</source>
        <translation>曲线的名称</translation>
    </message>
    <message>
        <source>Curve file</source>
        <translation>曲线文件</translation>
    </message>
    <message>
        <source>Every point is kept at once in NAME.run.csv beside it</source>
        <translation>每个点会立即保存在旁边的 NAME.run.csv 中</translation>
    </message>
    <message>
        <source>Fi&amp;le:</source>
        <translation>文件(&amp;L)：</translation>
    </message>
    <message>
        <source>Its largest dimension, for the hint on the distance</source>
        <translation>天线的最大尺寸，用于提示距离</translation>
    </message>
    <message>
        <source>The address of the meter or of the rotator is none.</source>
        <translation>功率计或转台的地址无效。</translation>
    </message>
    <message>
        <source>Asking both devices...</source>
        <translation>正在询问两台设备...</translation>
    </message>
    <message>
        <source>The meter does not answer: %1</source>
        <translation>功率计没有应答：%1</translation>
    </message>
    <message>
        <source>The rotator does not answer: %1</source>
        <translation>转台没有应答：%1</translation>
    </message>
    <message>
        <source>no reading</source>
        <translation>无读数</translation>
    </message>
    <message>
        <source>Meter: %1, %2, now %3</source>
        <translation>功率计：%1，%2，当前 %3</translation>
    </message>
    <message>
        <source>Rotator: %1, turns from %2° to %3°, stands at %4°</source>
        <translation>转台：%1，转动范围 %2° 至 %3°，当前 %4°</translation>
    </message>
    <message>
        <source>Rotator: %1, limits not told, stands at %2°</source>
        <translation>转台：%1，未报告转动范围，当前 %2°</translation>
    </message>
    <message>
        <source>The meter measures relative to a reference; turn that off first.</source>
        <translation>功率计正在进行相对测量；请先将其关闭。</translation>
    </message>
    <message>
        <source>%1 points</source>
        <translation>%1 个点</translation>
    </message>
    <message>
        <source>Far field from 2D²/λ = %1 m on, at %2.</source>
        <translation>远场从 2D²/λ = %1 m 开始（频率 %2）。</translation>
    </message>
    <message>
        <source>With the antenna&apos;s size, Check tells the far-field distance 2D²/λ.</source>
        <translation>填写天线尺寸后，“检查”会给出远场距离 2D²/λ。</translation>
    </message>
    <message>
        <source>A run into this file was begun before. Go on with it, or begin anew?</source>
        <translation>此文件已有一次未完成的测量。继续，还是重新开始？</translation>
    </message>
    <message>
        <source>The file exists already. Replace it at the end?</source>
        <translation>文件已存在。结束时替换它吗？</translation>
    </message>
    <message>
        <source>&amp;Go On</source>
        <translation>继续(&amp;G)</translation>
    </message>
    <message>
        <source>&amp;Begin Anew</source>
        <translation>重新开始(&amp;B)</translation>
    </message>
    <message>
        <source>&amp;Replace</source>
        <translation>替换(&amp;R)</translation>
    </message>
    <message>
        <source>This run is complete; open its curve instead.</source>
        <translation>该次测量已完成；请直接打开其曲线。</translation>
    </message>
    <message>
        <source>Curve File</source>
        <translation>曲线文件</translation>
    </message>
    <message>
        <source>Curve files (*.csv)</source>
        <translation>曲线文件 (*.csv)</translation>
    </message>
    <message>
        <source>Res&amp;ume</source>
        <translation>继续(&amp;U)</translation>
    </message>
    <message>
        <source>Meter b&amp;y:</source>
        <translation>功率计连接(&amp;Y)：</translation>
    </message>
    <message>
        <source>&amp;Rotator:</source>
        <translation>转台(&amp;R)：</translation>
    </message>
    <message>
        <source>Toleran&amp;ce:</source>
        <translation>容差(&amp;C)：</translation>
    </message>
    <message>
        <source>Settlin&amp;g:</source>
        <translation>稳定时间(&amp;G)：</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>名称(&amp;N)：</translation>
    </message>
    <message>
        <source>Bro&amp;wse...</source>
        <translation>浏览(&amp;W)...</translation>
    </message>
    <message>
        <source>&amp;Antenna size:</source>
        <translation>天线尺寸(&amp;A)：</translation>
    </message>
</context>
<context>
    <name>MeasureMenu</name>
    <message>
        <source>Measure &amp;Pattern...</source>
        <translation>测量方向图(&amp;P)...</translation>
    </message>
    <message>
        <source>Measures a pattern with the power meter and a turntable</source>
        <translation>用功率计和转台测量方向图</translation>
    </message>
    <message>
        <source>pattern</source>
        <translation>pattern</translation>
    </message>
    <message>
        <source>This is no run file that can be resumed: %1</source>
        <translation>该文件不是可以继续的测量记录：%1</translation>
    </message>
    <message>
        <source>A pattern is being measured in this window already.</source>
        <translation>此窗口中已在测量方向图。</translation>
    </message>
</context>
<context>
    <name>MeasureStrip</name>
    <message>
        <source>Pa&amp;use</source>
        <translation>暂停(&amp;U)</translation>
    </message>
    <message>
        <source>Sto&amp;p</source>
        <translation>停止(&amp;P)</translation>
    </message>
    <message>
        <source>Angle</source>
        <translation>角度</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>电平</translation>
    </message>
    <message>
        <source>Spread</source>
        <translation>离散</translation>
    </message>
    <message>
        <source>Remaining time</source>
        <translation>剩余时间</translation>
    </message>
    <message>
        <source>State of the measurement</source>
        <translation>测量状态</translation>
    </message>
    <message>
        <source>Points</source>
        <translation>点数</translation>
    </message>
    <message>
        <source>%v of %m points</source>
        <translation>%v / %m 点</translation>
    </message>
    <message>
        <source>Angle %1°</source>
        <translation>角度 %1°</translation>
    </message>
    <message>
        <source>The table reads %1°</source>
        <translation>转台读数 %1°</translation>
    </message>
    <message>
        <source>Level %1</source>
        <translation>电平 %1</translation>
    </message>
    <message>
        <source>Spread %1</source>
        <translation>离散 %1</translation>
    </message>
    <message>
        <source>Remaining %1</source>
        <translation>剩余 %1</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>已暂停</translation>
    </message>
    <message>
        <source>The table turns back</source>
        <translation>转台正在转回</translation>
    </message>
    <message>
        <source>&amp;Resume</source>
        <translation>继续(&amp;R)</translation>
    </message>
</context>
<context>
    <name>Measurement</name>
    <message>
        <source>Measured %1 with %2, rotator %3</source>
        <translation>测量于 %1，仪器 %2，转台 %3</translation>
    </message>
    <message>
        <source>Marked: the level drifted by %1 dB</source>
        <translation>已标记：电平漂移 %1 dB</translation>
    </message>
    <message>
        <source>Drift %1 dB</source>
        <translation>漂移 %1 dB</translation>
    </message>
    <message>
        <source>No reading at %1</source>
        <translation>无读数：%1</translation>
    </message>
    <message>
        <source>The table did not stay at %1</source>
        <translation>转台未能停留：%1</translation>
    </message>
    <message>
        <source>Unsteady readings at %1</source>
        <translation>读数不稳定：%1</translation>
    </message>
    <message>
        <source>Near the floor at %1</source>
        <translation>接近底噪：%1</translation>
    </message>
    <message>
        <source>The curve could not be written: %1
%2</source>
        <translation>曲线无法写入：%1
%2</translation>
    </message>
    <message>
        <source>The measurement has ended early. %1</source>
        <translation>测量提前结束。%1</translation>
    </message>
    <message>
        <source>The level drifted by %1 dB while the pattern was measured.</source>
        <translation>测量方向图期间电平漂移了 %1 dB。</translation>
    </message>
    <message>
        <source>Measured: %1</source>
        <translation>已测量：%1</translation>
    </message>
    <message>
        <source>Stopped; measured so far: %1</source>
        <translation>已停止；已测量部分：%1</translation>
    </message>
</context>
<context>
    <name>MessageDialog</name>
    <message>
        <source>Dialog</source>
        <translation>对话框</translation>
    </message>
    <message>
        <source>Main Information</source>
        <translation>主要信息</translation>
    </message>
    <message>
        <source>Other Information</source>
        <translation>其他信息</translation>
    </message>
    <message>
        <source>The present value</source>
        <translation>当前值</translation>
    </message>
    <message>
        <source>Present value</source>
        <translation>当前值</translation>
    </message>
    <message>
        <source>to</source>
        <translation>改为</translation>
    </message>
    <message>
        <source>The new value</source>
        <translation>新值</translation>
    </message>
    <message>
        <source>New value</source>
        <translation>新值</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>消息</translation>
    </message>
</context>
<context>
    <name>MessageSimpleDialog</name>
    <message>
        <source>Message</source>
        <translation>消息</translation>
    </message>
    <message>
        <source>photo</source>
        <translation>图片</translation>
    </message>
    <message>
        <source>Successful</source>
        <translation>成功</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
</context>
<context>
    <name>Mirror</name>
    <message>
        <source>&amp;Mirror Curve</source>
        <translation>镜像曲线(&amp;M)</translation>
    </message>
    <message>
        <source>Turns the sense of the selected curve&apos;s angles: left becomes right</source>
        <translation>反转所选曲线的角度方向：左右互换</translation>
    </message>
    <message>
        <source>Mirror Curve</source>
        <translation>镜像曲线</translation>
    </message>
    <message>
        <source>%1, mirrored</source>
        <translation>%1，镜像</translation>
    </message>
    <message>
        <source>&quot;%1&quot;, its angles&apos; sign turned</source>
        <translation>&quot;%1&quot;，角度符号取反</translation>
    </message>
</context>
<context>
    <name>MsiFormat</name>
    <message>
        <source>There is no GAIN: 0 dBi is taken.</source>
        <translation>没有 GAIN：按 0 dBi 处理。</translation>
    </message>
    <message>
        <source>There is neither a HORIZONTAL nor a VERTICAL cut.</source>
        <translation>既没有 HORIZONTAL 切面，也没有 VERTICAL 切面。</translation>
    </message>
    <message>
        <source>A row of numbers before HORIZONTAL and VERTICAL.</source>
        <translation>在 HORIZONTAL 和 VERTICAL 之前出现了数据行。</translation>
    </message>
    <message>
        <source>Not an angle and a loss: &quot;%1&quot;.</source>
        <translation>不是角度和损耗：&quot;%1&quot;。</translation>
    </message>
    <message>
        <source>The file ends within a row: it has been cut off.</source>
        <translation>文件在一行中间结束：内容不完整。</translation>
    </message>
    <message>
        <source>%1 announces %2 rows, but more follow.</source>
        <translation>%1 声明了 %2 行，但后面的行数更多。</translation>
    </message>
    <message>
        <source>No number of rows: &quot;%1&quot;.</source>
        <translation>缺少行数：&quot;%1&quot;。</translation>
    </message>
    <message>
        <source>There is a second cut %1.</source>
        <translation>出现了第二个 %1 切面。</translation>
    </message>
    <message>
        <source>%1 announces %2 rows, but %3 follow.</source>
        <translation>%1 声明了 %2 行，实际为 %3 行。</translation>
    </message>
    <message>
        <source>Unknown key: %1.</source>
        <translation>未知关键字：%1。</translation>
    </message>
    <message>
        <source>GAIN is no number: &quot;%1&quot;.</source>
        <translation>GAIN 不是数字：&quot;%1&quot;。</translation>
    </message>
    <message>
        <source>FREQUENCY is no frequency and was left out: &quot;%1&quot;.</source>
        <translation>FREQUENCY 不是频率，已忽略：&quot;%1&quot;。</translation>
    </message>
    <message>
        <source>There is no NAME: the file&apos;s name is taken.</source>
        <translation>没有 NAME：采用文件名。</translation>
    </message>
    <message>
        <source>There is no HORIZONTAL cut.</source>
        <translation>没有 HORIZONTAL 切面。</translation>
    </message>
    <message>
        <source>There is no VERTICAL cut.</source>
        <translation>没有 VERTICAL 切面。</translation>
    </message>
    <message>
        <source>%1: the minus sign of %2 losses is ignored.</source>
        <translation>%1：%2 个损耗值的负号已忽略。</translation>
    </message>
    <message>
        <source>%1 does not go round the circle: there is nothing from %2° to %3°.</source>
        <translation>%1未覆盖整个圆周：从 %2° 到 %3° 没有数据。</translation>
    </message>
    <message>
        <source>The horizontal cut</source>
        <translation>水平切面</translation>
    </message>
    <message>
        <source>The vertical cut</source>
        <translation>垂直切面</translation>
    </message>
</context>
<context>
    <name>MyParaInfoTable</name>
    <message>
        <source>Pattern parameters</source>
        <translation>方向图参数</translation>
    </message>
    <message>
        <source>Gain</source>
        <translation>增益</translation>
    </message>
    <message>
        <source>3dB (L)</source>
        <translation>3dB 点(左)</translation>
    </message>
    <message>
        <source>3dB (R)</source>
        <translation>3dB 点(右)</translation>
    </message>
    <message>
        <source>3dB Width</source>
        <translation>3dB 宽度</translation>
    </message>
    <message>
        <source>First Null(L)</source>
        <translation>第一零点(左)</translation>
    </message>
    <message>
        <source>First Null(R)</source>
        <translation>第一零点(右)</translation>
    </message>
    <message>
        <source>First Side Lobe(L)</source>
        <translation>第一副瓣(左)</translation>
    </message>
    <message>
        <source>First Side Lobe(R)</source>
        <translation>第一副瓣(右)</translation>
    </message>
    <message>
        <source>Before After Ratio(R)</source>
        <translation>前后比(R)</translation>
    </message>
    <message>
        <source>Axial Ratio</source>
        <translation>轴比</translation>
    </message>
    <message>
        <source>CrossPolarRatio</source>
        <translation>交叉极化比</translation>
    </message>
</context>
<context>
    <name>NecFormat</name>
    <message>
        <source>The listing holds no radiation pattern.</source>
        <translation>列表中没有辐射方向图。</translation>
    </message>
    <message>
        <source>Fewer than five numbers in a row of the pattern.</source>
        <translation>方向图的一行中数字少于五个。</translation>
    </message>
    <message>
        <source>The file ends within a row: it has been cut off.</source>
        <translation>文件在一行中间结束：内容不完整。</translation>
    </message>
    <message>
        <source>The pattern has %1 rows of %2: the listing has been cut off.</source>
        <translation>方向图有 %1 行，应有 %2 行：列表不完整。</translation>
    </message>
    <message>
        <source>The listing ends with a row of the pattern: it may have been cut off.</source>
        <translation>列表以方向图的一行结束：内容可能不完整。</translation>
    </message>
    <message>
        <source>The numbers have a decimal comma instead of a point.</source>
        <translation>数字使用了小数逗号而不是小数点。</translation>
    </message>
</context>
<context>
    <name>Normalise</name>
    <message>
        <source>&amp;Normalise...</source>
        <translation>归一化(&amp;N)...</translation>
    </message>
    <message>
        <source>Raises or lowers the selected curve, to a peak or by an offset</source>
        <translation>将所选曲线升降到指定峰值或按偏移量调整</translation>
    </message>
    <message>
        <source>Normalise</source>
        <translation>归一化</translation>
    </message>
    <message>
        <source>%1, normalised</source>
        <translation>%1，归一化</translation>
    </message>
    <message>
        <source>%2 dB added to &quot;%1&quot;</source>
        <translation>&quot;%1&quot;增加 %2 dB</translation>
    </message>
</context>
<context>
    <name>NsmaFormat</name>
    <message>
        <source>The file holds no cut.</source>
        <translation>文件中没有切面。</translation>
    </message>
    <message>
        <source>NUPOIN is no number: &quot;%1&quot;.</source>
        <translation>NUPOIN 不是数字：&quot;%1&quot;。</translation>
    </message>
    <message>
        <source>GUNITS are none that are known: &quot;%1&quot;.</source>
        <translation>未知的 GUNITS 单位：&quot;%1&quot;。</translation>
    </message>
    <message>
        <source>Neither a key nor a row of a cut: &quot;%1&quot;.</source>
        <translation>既不是关键字，也不是切面数据：&quot;%1&quot;。</translation>
    </message>
    <message>
        <source>Not an angle and a level: &quot;%1&quot;.</source>
        <translation>不是角度和电平：&quot;%1&quot;。</translation>
    </message>
    <message>
        <source>The file ends within a row: it has been cut off.</source>
        <translation>文件在一行中间结束：内容不完整。</translation>
    </message>
    <message>
        <source>There are no GUNITS: DBI/DBR is taken.</source>
        <translation>没有 GUNITS：按 DBI/DBR 处理。</translation>
    </message>
    <message>
        <source>%1 is no number: &quot;%2&quot;.</source>
        <translation>%1 不是数字：&quot;%2&quot;。</translation>
    </message>
    <message>
        <source>There is no gain: 0 dBi is taken.</source>
        <translation>没有增益：按 0 dBi 处理。</translation>
    </message>
    <message>
        <source>ENDFIL is missing, though all rows are there.</source>
        <translation>缺少 ENDFIL，但数据行齐全。</translation>
    </message>
    <message>
        <source>The file ends before ENDFIL: it has been cut off.</source>
        <translation>文件在 ENDFIL 之前结束：内容不完整。</translation>
    </message>
    <message>
        <source>NUPOIN announces %1 rows, but %2 follow.</source>
        <translation>NUPOIN 声明了 %1 行，实际为 %2 行。</translation>
    </message>
    <message>
        <source>%1 rows without any field were left out.</source>
        <translation>已忽略 %1 个无场强的行。</translation>
    </message>
    <message>
        <source>The cut holds no row and was left out.</source>
        <translation>该切面没有数据，已忽略。</translation>
    </message>
</context>
<context>
    <name>OpenActions</name>
    <message>
        <source>&amp;Clear List</source>
        <translation>清除列表(&amp;C)</translation>
    </message>
    <message>
        <source>Opening was cancelled; the charts are as they were.</source>
        <translation>已取消打开，图表保持原样。</translation>
    </message>
    <message>
        <source>Curves opened: %1.</source>
        <translation>已打开曲线：%1 条。</translation>
    </message>
    <message>
        <source>These files could not be opened:</source>
        <translation>以下文件无法打开：</translation>
    </message>
    <message>
        <source>The files were opened. Please look at these points:</source>
        <translation>文件已打开，请注意以下各点：</translation>
    </message>
    <message>
        <source>Open Curves</source>
        <translation>打开曲线</translation>
    </message>
    <message>
        <source>The sample patterns are not installed.</source>
        <translation>未安装方向图示例。</translation>
    </message>
    <message>
        <source>Curves and patterns (*.csv *.msi *.pln *.adf *.out *.txt);;All files (*)</source>
        <translation>曲线和方向图 (*.csv *.msi *.pln *.adf *.out *.txt);;所有文件 (*)</translation>
    </message>
    <message>
        <source>Others were opened. Please look at these points:</source>
        <translation>其他文件已打开。请注意以下几点：</translation>
    </message>
</context>
<context>
    <name>OperationDialogs</name>
    <message>
        <source>Normalise</source>
        <translation>归一化</translation>
    </message>
    <message>
        <source>&amp;Peak to</source>
        <translation>峰值调至(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Add</source>
        <translation>增加(&amp;A)</translation>
    </message>
    <message>
        <source>Compare</source>
        <translation>比较</translation>
    </message>
    <message>
        <source>&amp;Curve:</source>
        <translation>曲线(&amp;C)：</translation>
    </message>
    <message>
        <source>&amp;minus:</source>
        <translation>减去(&amp;M)：</translation>
    </message>
</context>
<context>
    <name>ParaInfoTable</name>
    <message>
        <source>Pattern parameters by frequency</source>
        <translation>各频率的方向图参数</translation>
    </message>
    <message>
        <source>Frequency(MHz)</source>
        <translation>频率(MHz)</translation>
    </message>
    <message>
        <source>Gain</source>
        <translation>增益</translation>
    </message>
    <message>
        <source>3dB Width</source>
        <translation>3dB 宽度</translation>
    </message>
    <message>
        <source>First Side Lobe(L)</source>
        <translation>第一副瓣左</translation>
    </message>
    <message>
        <source>First Side Lobe(R)</source>
        <translation>第一副瓣右</translation>
    </message>
    <message>
        <source>Before After Ratio</source>
        <translation>前后比</translation>
    </message>
    <message>
        <source>Axial Ratio</source>
        <translation>轴比</translation>
    </message>
    <message>
        <source>CrossPolarRatio</source>
        <translation>交叉极化比</translation>
    </message>
    <message>
        <source>Amplitude</source>
        <translation>幅度</translation>
    </message>
</context>
<context>
    <name>PatternFormats</name>
    <message>
        <source>Maker</source>
        <translation>制造商</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>型号</translation>
    </message>
    <message>
        <source>Polarisation</source>
        <translation>极化</translation>
    </message>
    <message>
        <source>Comment</source>
        <translation>备注</translation>
    </message>
    <message>
        <source>Line %1: %2</source>
        <translation>第 %1 行：%2</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1：%2</translation>
    </message>
    <message>
        <source>, vertical</source>
        <translation>，垂直分量</translation>
    </message>
    <message>
        <source>, horizontal</source>
        <translation>，水平分量</translation>
    </message>
    <message>
        <source>There is no curve to write.</source>
        <translation>没有可写出的曲线。</translation>
    </message>
    <message>
        <source>An MSI file needs a horizontal and a vertical curve.</source>
        <translation>MSI 文件需要一条水平曲线和一条垂直曲线。</translation>
    </message>
</context>
<context>
    <name>PatternWindow</name>
    <message>
        <source>Antenna Pattern Workbench</source>
        <translation>天线方向图工作台</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>文件(&amp;F)</translation>
    </message>
    <message>
        <source>Open &amp;Recent</source>
        <translation>最近打开的文件(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>编辑(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>视图(&amp;V)</translation>
    </message>
    <message>
        <source>&amp;Language</source>
        <translation>语言(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Loss</source>
        <translation>损耗(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>帮助(&amp;H)</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>工具</translation>
    </message>
    <message>
        <source>&amp;New Window</source>
        <translation>新建窗口(&amp;N)</translation>
    </message>
    <message>
        <source>&amp;Open...</source>
        <translation>打开(&amp;O)...</translation>
    </message>
    <message>
        <source>Opens one or more curve files</source>
        <translation>打开一个或多个曲线文件</translation>
    </message>
    <message>
        <source>Open &amp;Samples</source>
        <translation>打开示例(&amp;S)</translation>
    </message>
    <message>
        <source>Opens the sample patterns that came with the program</source>
        <translation>打开随程序提供的方向图示例</translation>
    </message>
    <message>
        <source>Save &amp;Curve As...</source>
        <translation>曲线另存为(&amp;C)...</translation>
    </message>
    <message>
        <source>Writes the selected curve to a curve file</source>
        <translation>将选中的曲线写入曲线文件</translation>
    </message>
    <message>
        <source>Save &amp;Picture As...</source>
        <translation>图像另存为(&amp;P)...</translation>
    </message>
    <message>
        <source>Writes the charts to a picture file</source>
        <translation>将图表写入图像文件</translation>
    </message>
    <message>
        <source>Save &amp;Report As...</source>
        <translation>报告另存为(&amp;R)...</translation>
    </message>
    <message>
        <source>Writes picture, description and parameters to an HTML or PDF file</source>
        <translation>将图表、说明和参数写入 HTML 或 PDF 文件</translation>
    </message>
    <message>
        <source>&amp;Print Report...</source>
        <translation>打印报告(&amp;P)...</translation>
    </message>
    <message>
        <source>Close &amp;Window</source>
        <translation>关闭窗口(&amp;W)</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>退出(&amp;Q)</translation>
    </message>
    <message>
        <source>&amp;Copy Curve</source>
        <translation>复制曲线(&amp;C)</translation>
    </message>
    <message>
        <source>Puts the selected curve on the clipboard</source>
        <translation>将选中的曲线复制到剪贴板</translation>
    </message>
    <message>
        <source>&amp;Paste Curve</source>
        <translation>粘贴曲线(&amp;P)</translation>
    </message>
    <message>
        <source>Makes a curve of the text on the clipboard</source>
        <translation>用剪贴板中的文本生成曲线</translation>
    </message>
    <message>
        <source>Copy Parameter &amp;Table</source>
        <translation>复制参数表(&amp;T)</translation>
    </message>
    <message>
        <source>Puts the parameters of all shown curves on the clipboard as text</source>
        <translation>将所有显示曲线的参数以文本形式复制到剪贴板</translation>
    </message>
    <message>
        <source>&amp;Remove Curve</source>
        <translation>移除曲线(&amp;R)</translation>
    </message>
    <message>
        <source>Takes the selected curve off both charts</source>
        <translation>将选中的曲线从两个图表中移除</translation>
    </message>
    <message>
        <source>&amp;Fit to Data</source>
        <translation>适应数据(&amp;F)</translation>
    </message>
    <message>
        <source>Chooses the ranges of both charts from the curves</source>
        <translation>按曲线数据设定两个图表的显示范围</translation>
    </message>
    <message>
        <source>&amp;Symmetry</source>
        <translation>镜像(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Manage Curves...</source>
        <translation>曲线管理(&amp;M)...</translation>
    </message>
    <message>
        <source>Names, colours, line widths and visibility of all curves</source>
        <translation>所有曲线的名称、颜色、线宽和显示状态</translation>
    </message>
    <message>
        <source>&amp;Load Loss Table...</source>
        <translation>载入损耗表(&amp;L)...</translation>
    </message>
    <message>
        <source>Correct &amp;Up-link</source>
        <translation>上行修正(&amp;U)</translation>
    </message>
    <message>
        <source>Adds the up-link loss at the selected curve&apos;s frequency; the result is a new curve</source>
        <translation>按选中曲线的频率叠加上行损耗，结果为一条新曲线</translation>
    </message>
    <message>
        <source>Correct &amp;Down-link</source>
        <translation>下行修正(&amp;D)</translation>
    </message>
    <message>
        <source>Adds the down-link loss at the selected curve&apos;s frequency; the result is a new curve</source>
        <translation>按选中曲线的频率叠加下行损耗，结果为一条新曲线</translation>
    </message>
    <message>
        <source>&amp;About</source>
        <translation>关于(&amp;A)</translation>
    </message>
    <message>
        <source>About &amp;Qt</source>
        <translation>关于 Qt(&amp;Q)</translation>
    </message>
    <message>
        <source>The file could not be written, what was there is unchanged: %1
%2</source>
        <translation>文件无法写入，原有内容未改变：%1
%2</translation>
    </message>
    <message>
        <source>Written: %1</source>
        <translation>已写入：%1</translation>
    </message>
    <message>
        <source>Save Report</source>
        <translation>保存报告</translation>
    </message>
    <message>
        <source>About</source>
        <translation>关于</translation>
    </message>
    <message>
        <source>&lt;h3&gt;Antenna Pattern Workbench&lt;/h3&gt;&lt;p&gt;Version %1, with Qt %2&lt;/p&gt;&lt;p&gt;Shows antenna patterns in a polar and a cartesian chart and tells gain, beam width, nulls and side lobes.&lt;/p&gt;</source>
        <translation>&lt;h3&gt;天线方向图工作台&lt;/h3&gt;&lt;p&gt;版本 %1，Qt %2&lt;/p&gt;&lt;p&gt;以极坐标图和直角坐标图显示天线方向图，并给出增益、波束宽度、零点和副瓣。&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>打开</translation>
    </message>
    <message>
        <source>Print Report</source>
        <translation>打印报告</translation>
    </message>
    <message>
        <source>Copy Parameter Table</source>
        <translation>复制参数表</translation>
    </message>
    <message>
        <source>Parameter Li&amp;nes</source>
        <translation>参数线(&amp;N)</translation>
    </message>
    <message>
        <source>Parameter Lines</source>
        <translation>参数线</translation>
    </message>
    <message>
        <source>Shows peak, 3 dB points and first side lobes of every curve as lines</source>
        <translation>以线条显示每条曲线的峰值、3 dB 点和第一副瓣</translation>
    </message>
    <message>
        <source>Manage Curves</source>
        <translation>曲线管理</translation>
    </message>
    <message>
        <source>Draws every curve mirrored until the ranges change; the values stay</source>
        <translation>以镜像方式绘制所有曲线，直到显示范围改变；数值不变</translation>
    </message>
    <message>
        <source>&amp;Undo Symmetry</source>
        <translation>撤销镜像(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Measure</source>
        <translation>测量(&amp;M)</translation>
    </message>
    <message>
        <source>Save &amp;All Curves...</source>
        <translation>保存全部曲线(&amp;A)...</translation>
    </message>
    <message>
        <source>Writes every curve to a file of its own in one folder</source>
        <translation>将每条曲线分别写入同一文件夹中的文件</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>撤销(&amp;U)</translation>
    </message>
    <message>
        <source>Re&amp;do</source>
        <translation>重做(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;Export Pattern...</source>
        <translation>导出方向图(&amp;E)...</translation>
    </message>
    <message>
        <source>Writes curves as a file of MSI, NSMA or NEC2</source>
        <translation>将曲线写成 MSI、NSMA 或 NEC2 文件</translation>
    </message>
    <message>
        <source>P&amp;olar Chart</source>
        <translation>极坐标图(&amp;O)</translation>
    </message>
    <message>
        <source>0° &amp;Up, Clockwise</source>
        <translation>0° 向上，顺时针(&amp;U)</translation>
    </message>
    <message>
        <source>0° Up, &amp;Counter-clockwise</source>
        <translation>0° 向上，逆时针(&amp;C)</translation>
    </message>
    <message>
        <source>0° &amp;Right, Counter-clockwise</source>
        <translation>0° 向右，逆时针(&amp;R)</translation>
    </message>
    <message>
        <source>0° &amp;Down, Clockwise</source>
        <translation>0° 向下，顺时针(&amp;D)</translation>
    </message>
    <message>
        <source>Labels &amp;-180 ... 180</source>
        <translation>标签 -180 ... 180(&amp;-)</translation>
    </message>
    <message>
        <source>Labels &amp;0 ... 360</source>
        <translation>标签 0 ... 360(&amp;0)</translation>
    </message>
    <message>
        <source>&amp;Manual</source>
        <translation>手册(&amp;M)</translation>
    </message>
    <message>
        <source>%1 - %2</source>
        <translation>%1 - %2</translation>
    </message>
    <message>
        <source>&amp;Beam Widths...</source>
        <translation>波束宽度(&amp;B)...</translation>
    </message>
    <message>
        <source>Tells the beam widths at levels of your choice, with lines in both charts</source>
        <translation>给出所选电平处的波束宽度，并在两个图中画线</translation>
    </message>
    <message>
        <source>Mar&amp;kers</source>
        <translation>标记(&amp;K)</translation>
    </message>
    <message>
        <source>To &amp;Peak</source>
        <translation>到峰值(&amp;P)</translation>
    </message>
    <message>
        <source>Sends the selected marker of the selected curve to its peak, or puts one there</source>
        <translation>将所选曲线的所选标记移到峰值，或在该处放置标记</translation>
    </message>
    <message>
        <source>To &amp;Next Peak</source>
        <translation>到下一峰值(&amp;N)</translation>
    </message>
    <message>
        <source>Sends the selected marker to the next lower peak of its curve</source>
        <translation>将所选标记移到曲线的下一个较低峰值</translation>
    </message>
    <message>
        <source>To -&amp;3 dB</source>
        <translation>到 -3 dB(&amp;3)</translation>
    </message>
    <message>
        <source>Sends the selected marker to a half-power point of its curve, and again to the other</source>
        <translation>将所选标记移到曲线的半功率点，再次执行则移到另一侧</translation>
    </message>
    <message>
        <source>&amp;Deltas</source>
        <translation>差值(&amp;D)</translation>
    </message>
    <message>
        <source>Tells markers as what they differ from the first of their curve</source>
        <translation>将标记显示为相对曲线第一个标记的差值</translation>
    </message>
</context>
<context>
    <name>PlanText</name>
    <message>
        <source>An angle is no number.</source>
        <translation>有一个角度不是数字。</translation>
    </message>
    <message>
        <source>The step must be above 0 degrees.</source>
        <translation>步长必须大于 0 度。</translation>
    </message>
    <message>
        <source>The sense is 1 or -1.</source>
        <translation>方向只能是 1 或 -1。</translation>
    </message>
    <message>
        <source>The sweep spans more than one turn.</source>
        <translation>扫描范围超过一整圈。</translation>
    </message>
    <message>
        <source>The sweep has too many points.</source>
        <translation>扫描点数太多。</translation>
    </message>
    <message>
        <source>The table does not reach all angles; it turns from %1 to %2 degrees.</source>
        <translation>转台无法到达所有角度；其转动范围为 %1 至 %2 度。</translation>
    </message>
    <message>
        <source>The table does not reach all angles.</source>
        <translation>转台无法到达所有角度。</translation>
    </message>
</context>
<context>
    <name>PointTableModel</name>
    <message>
        <source>Angle [°]</source>
        <translation>角度 [°]</translation>
    </message>
    <message>
        <source>Level [dB]</source>
        <translation>电平 [dB]</translation>
    </message>
</context>
<context>
    <name>PowerDisplay</name>
    <message>
        <source>Not connected</source>
        <translation>未连接</translation>
    </message>
    <message>
        <source>No reading</source>
        <translation>无读数</translation>
    </message>
    <message>
        <source>No reading: the instrument says &quot;%1&quot;</source>
        <translation>无读数：仪器显示“%1”</translation>
    </message>
    <message>
        <source>Live</source>
        <translation>实时</translation>
    </message>
    <message>
        <source>Stale: %1 s old</source>
        <translation>已过时：%1 秒前</translation>
    </message>
    <message>
        <source>Power: %1 %2, %3</source>
        <translation>功率：%1 %2，%3</translation>
    </message>
    <message>
        <source>In the instrument&apos;s unit: %1</source>
        <translation>以仪器单位显示：%1</translation>
    </message>
</context>
<context>
    <name>Reconnector</name>
    <message>
        <source>No link since %1.</source>
        <translation>自 %1 起无连接。</translation>
    </message>
    <message>
        <source>Trying again …</source>
        <translation>正在重试 …</translation>
    </message>
    <message>
        <source>Waiting for %1 to come back.</source>
        <translation>等待 %1 恢复。</translation>
    </message>
    <message>
        <source>Next try in %1 s.</source>
        <translation>%1 秒后重试。</translation>
    </message>
</context>
<context>
    <name>RecordChart</name>
    <message>
        <source>Record</source>
        <translation>记录</translation>
    </message>
    <message>
        <source>Level against the clock time, with cursors A and B</source>
        <translation>电平随时钟时间变化，带光标 A 和 B</translation>
    </message>
    <message>
        <source>Power [dB]</source>
        <translation>功率 [dB]</translation>
    </message>
    <message>
        <source>Power [dBm]</source>
        <translation>功率 [dBm]</translation>
    </message>
    <message>
        <source>Cursor A here</source>
        <translation>光标 A 放在此处</translation>
    </message>
    <message>
        <source>Cursor B here</source>
        <translation>光标 B 放在此处</translation>
    </message>
    <message>
        <source>Show all</source>
        <translation>全部显示</translation>
    </message>
</context>
<context>
    <name>RecordReader</name>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>无法读取 %1：%2</translation>
    </message>
    <message>
        <source>%1 holds no record.</source>
        <translation>%1 不含记录。</translation>
    </message>
    <message>
        <source>%1 is a record of another kind than the other files.</source>
        <translation>%1 的记录类型与其他文件不同。</translation>
    </message>
</context>
<context>
    <name>RecordTables</name>
    <message>
        <source>Rows at the cursors</source>
        <translation>光标处的行</translation>
    </message>
    <message>
        <source>Between the cursors</source>
        <translation>光标之间</translation>
    </message>
    <message>
        <source>From A to B</source>
        <translation>从 A 到 B</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>时间</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>电平</translation>
    </message>
    <message>
        <source>Difference</source>
        <translation>差值</translation>
    </message>
    <message>
        <source>Mean</source>
        <translation>平均</translation>
    </message>
    <message>
        <source>none: dB and dBm are mixed</source>
        <translation>无：dB 与 dBm 混用</translation>
    </message>
    <message>
        <source>Minimum</source>
        <translation>最小</translation>
    </message>
    <message>
        <source>Maximum</source>
        <translation>最大</translation>
    </message>
    <message>
        <source>Peak to peak</source>
        <translation>峰峰值</translation>
    </message>
    <message>
        <source>Sigma</source>
        <translation>标准差</translation>
    </message>
    <message>
        <source>Rows</source>
        <translation>行数</translation>
    </message>
    <message>
        <source>Gaps</source>
        <translation>间断</translation>
    </message>
</context>
<context>
    <name>RecordView</name>
    <message>
        <source>&amp;File</source>
        <translation>文件(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>视图(&amp;V)</translation>
    </message>
    <message>
        <source>&amp;Open Record…</source>
        <translation>打开记录(&amp;O)…</translation>
    </message>
    <message>
        <source>&amp;Add Files…</source>
        <translation>添加文件(&amp;A)…</translation>
    </message>
    <message>
        <source>Save &amp;Picture…</source>
        <translation>保存图片(&amp;P)…</translation>
    </message>
    <message>
        <source>&amp;Save Rows from A to B…</source>
        <translation>保存 A 到 B 的行(&amp;S)…</translation>
    </message>
    <message>
        <source>&amp;Copy Figures</source>
        <translation>复制数值(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>关闭(&amp;C)</translation>
    </message>
    <message>
        <source>Show &amp;All</source>
        <translation>全部显示(&amp;A)</translation>
    </message>
    <message>
        <source>Zoom &amp;In</source>
        <translation>放大(&amp;I)</translation>
    </message>
    <message>
        <source>Zoom &amp;Out</source>
        <translation>缩小(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;Fit Level</source>
        <translation>电平自适应(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Go on with Files That Grow</source>
        <translation>跟随增长的文件(&amp;G)</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Reading the record</source>
        <translation>正在读取记录</translation>
    </message>
    <message>
        <source>Record</source>
        <translation>记录</translation>
    </message>
    <message>
        <source>Record - %1</source>
        <translation>记录 - %1</translation>
    </message>
    <message>
        <source>Record - %1 and %2 more</source>
        <translation>记录 - %1 及另外 %2 个</translation>
    </message>
    <message>
        <source>Open Record</source>
        <translation>打开记录</translation>
    </message>
    <message>
        <source>Records (*.csv *.jsonl);;All files (*)</source>
        <translation>记录 (*.csv *.jsonl);;所有文件 (*)</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>注意</translation>
    </message>
    <message>
        <source>Save Picture</source>
        <translation>保存图片</translation>
    </message>
    <message>
        <source>Pictures (*.png)</source>
        <translation>图片 (*.png)</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2</source>
        <translation>无法写入 %1：%2</translation>
    </message>
    <message>
        <source>Save Rows</source>
        <translation>保存行</translation>
    </message>
    <message>
        <source>%1 is a file of this record: choose another name.</source>
        <translation>%1 是此记录的文件，请另选名称。</translation>
    </message>
    <message>
        <source>Rows with a level: %1, gaps: %2</source>
        <translation>有电平的行：%1，间断：%2</translation>
    </message>
    <message>
        <source>, lines not understood: %1</source>
        <translation>，无法识别的行：%1</translation>
    </message>
</context>
<context>
    <name>Report</name>
    <message>
        <source>%1° to %2°</source>
        <translation>%1° 至 %2°</translation>
    </message>
    <message>
        <source>Curve</source>
        <translation>曲线</translation>
    </message>
    <message>
        <source>Frequency (MHz)</source>
        <translation>频率 (MHz)</translation>
    </message>
    <message>
        <source>Material</source>
        <translation>材料</translation>
    </message>
    <message>
        <source>Points</source>
        <translation>点数</translation>
    </message>
    <message>
        <source>Angles</source>
        <translation>角度</translation>
    </message>
    <message>
        <source>Loss correction</source>
        <translation>损耗修正</translation>
    </message>
    <message>
        <source>File</source>
        <translation>文件</translation>
    </message>
    <message>
        <source>Curves</source>
        <translation>曲线</translation>
    </message>
    <message>
        <source>Pattern parameters</source>
        <translation>方向图参数</translation>
    </message>
    <message>
        <source>Notes</source>
        <translation>备注</translation>
    </message>
    <message>
        <source>Mask</source>
        <translation>掩模</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>结果</translation>
    </message>
    <message>
        <source>Worst margin (dB)</source>
        <translation>最差余量 (dB)</translation>
    </message>
    <message>
        <source>At (°)</source>
        <translation>角度 (°)</translation>
    </message>
    <message>
        <source>pass</source>
        <translation>合格</translation>
    </message>
    <message>
        <source>fail</source>
        <translation>不合格</translation>
    </message>
    <message>
        <source>Mask limits</source>
        <translation>限值掩模</translation>
    </message>
    <message>
        <source>Supplementary (textbook definitions, nulls from %1 dB)</source>
        <translation>补充参数（教科书定义，零点不小于 %1 dB）</translation>
    </message>
</context>
<context>
    <name>Rotate</name>
    <message>
        <source>R&amp;otate...</source>
        <translation>旋转(&amp;O)...</translation>
    </message>
    <message>
        <source>Adds an angle to those of the selected curve</source>
        <translation>将所选曲线的角度整体增加一个值</translation>
    </message>
    <message>
        <source>Rotate</source>
        <translation>旋转</translation>
    </message>
    <message>
        <source>&amp;Angle:</source>
        <translation>角度(&amp;A)：</translation>
    </message>
    <message>
        <source>%1, rotated by %2°</source>
        <translation>%1，旋转 %2°</translation>
    </message>
    <message>
        <source>&quot;%1&quot;, rotated by %2°</source>
        <translation>&quot;%1&quot;，旋转 %2°</translation>
    </message>
</context>
<context>
    <name>RotatorClient</name>
    <message>
        <source>The rotator&apos;s reply is none.</source>
        <translation>转台控制器的应答无法识别。</translation>
    </message>
    <message>
        <source>The rotator does not tell its position (error %1).</source>
        <translation>转台没有报告位置（错误 %1）。</translation>
    </message>
    <message>
        <source>The rotator cannot be reached.</source>
        <translation>无法连接转台。</translation>
    </message>
    <message>
        <source>The rotator does not answer.</source>
        <translation>转台没有应答。</translation>
    </message>
</context>
<context>
    <name>SaveActions</name>
    <message>
        <source>Curve files</source>
        <translation>曲线文件</translation>
    </message>
    <message>
        <source>curve</source>
        <translation>曲线</translation>
    </message>
    <message>
        <source>Save Curve</source>
        <translation>保存曲线</translation>
    </message>
    <message>
        <source>Save Picture</source>
        <translation>保存图像</translation>
    </message>
    <message>
        <source>patterns</source>
        <translation>方向图</translation>
    </message>
    <message>
        <source>PNG picture</source>
        <translation>PNG 图片</translation>
    </message>
    <message>
        <source>JPEG picture</source>
        <translation>JPEG 图片</translation>
    </message>
    <message>
        <source>Save Report</source>
        <translation>保存报告</translation>
    </message>
    <message>
        <source>report</source>
        <translation>报告</translation>
    </message>
    <message>
        <source>HTML report</source>
        <translation>HTML 报告</translation>
    </message>
    <message>
        <source>PDF report</source>
        <translation>PDF 报告</translation>
    </message>
    <message>
        <source>Folder for the Curves</source>
        <translation>曲线文件夹</translation>
    </message>
    <message>
        <source>Curves written: %1.</source>
        <translation>已写入曲线：%1。</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>These curves are in no file:
%1</source>
        <translation>这些曲线未保存到文件：
%1</translation>
    </message>
    <message>
        <source>MSI pattern</source>
        <translation>MSI 方向图</translation>
    </message>
    <message>
        <source>NSMA pattern</source>
        <translation>NSMA 方向图</translation>
    </message>
    <message>
        <source>NEC2 listing</source>
        <translation>NEC2 列表</translation>
    </message>
    <message>
        <source>Export Pattern</source>
        <translation>导出方向图</translation>
    </message>
    <message>
        <source>pattern</source>
        <translation>方向图</translation>
    </message>
    <message>
        <source>The pattern cannot be written:</source>
        <translation>无法写出方向图：</translation>
    </message>
    <message>
        <source>SVG drawing</source>
        <translation>SVG 矢量图</translation>
    </message>
    <message>
        <source>PDF drawing</source>
        <translation>PDF 矢量图</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no format for pictures: use png, jpg, svg or pdf.</source>
        <translation>“%1”不是图片格式：请使用 png、jpg、svg 或 pdf。</translation>
    </message>
</context>
<context>
    <name>SaveQuestion</name>
    <message>
        <source>&quot;%1&quot; is no format that can be written here. Known formats: %2.</source>
        <translation>此处不能写入“%1”格式。可用格式：%2。</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>替换</translation>
    </message>
    <message>
        <source>This exists already:
%1
Replace it?</source>
        <translation>已存在：
%1
要替换吗？</translation>
    </message>
    <message>
        <source>&amp;Replace</source>
        <translation>替换(&amp;R)</translation>
    </message>
</context>
<context>
    <name>SerialLogic</name>
    <message>
        <source>Failed to connect %1</source>
        <translation>连接 %1 失败</translation>
    </message>
    <message>
        <source>Please open the serial port first.</source>
        <translation>请先打开串口。</translation>
    </message>
    <message>
        <source>Failed to send cmd.</source>
        <translation>命令发送失败。</translation>
    </message>
    <message>
        <source>Please connect first.</source>
        <translation>请先连接仪器。</translation>
    </message>
</context>
<context>
    <name>SettingBoxes</name>
    <message>
        <source>Frequency</source>
        <translation>频率</translation>
    </message>
    <message>
        <source>Offset</source>
        <translation>偏置</translation>
    </message>
    <message>
        <source>Average count</source>
        <translation>平均次数</translation>
    </message>
    <message>
        <source>Relative state</source>
        <translation>相对测量</translation>
    </message>
    <message>
        <source>Power unit</source>
        <translation>功率单位</translation>
    </message>
    <message>
        <source>%1: asked for %2, the instrument holds %3.</source>
        <translation>%1：要求 %2，仪器实际为 %3。</translation>
    </message>
    <message>
        <source>Not confirmed: the instrument holds %1.</source>
        <translation>未确认：仪器实际为 %1。</translation>
    </message>
    <message>
        <source>Not sent: the instrument holds %1. Esc puts that back.</source>
        <translation>未发送：仪器实际为 %1。按 Esc 可恢复。</translation>
    </message>
    <message>
        <source>%1 was confirmed, but could not be read back.</source>
        <translation>%1已确认，但无法读回。</translation>
    </message>
    <message>
        <source>Not known: the instrument did not tell what it holds.</source>
        <translation>未知：仪器没有告知实际值。</translation>
    </message>
</context>
<context>
    <name>Smooth</name>
    <message>
        <source>&amp;Smooth...</source>
        <translation>平滑(&amp;S)...</translation>
    </message>
    <message>
        <source>Averages the power of the selected curve over a width in degrees</source>
        <translation>按角度宽度对所选曲线的功率取平均</translation>
    </message>
    <message>
        <source>Smooth</source>
        <translation>平滑</translation>
    </message>
    <message>
        <source>&amp;Width:</source>
        <translation>宽度(&amp;W)：</translation>
    </message>
    <message>
        <source>%1, smoothed over %2°</source>
        <translation>%1，平滑 %2°</translation>
    </message>
    <message>
        <source>&quot;%1&quot;, moving average of the power over %2°</source>
        <translation>&quot;%1&quot;，%2° 宽度的功率滑动平均</translation>
    </message>
</context>
<context>
    <name>StatisticsPanel</name>
    <message>
        <source>&amp;Over</source>
        <translation>范围(&amp;O)</translation>
    </message>
    <message>
        <source>since reset</source>
        <translation>自重置起</translation>
    </message>
    <message>
        <source>the shown range of the chart</source>
        <translation>图表所示范围</translation>
    </message>
    <message>
        <source>Statistics over</source>
        <translation>统计范围</translation>
    </message>
    <message>
        <source>Statistics</source>
        <translation>统计</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>当前</translation>
    </message>
    <message>
        <source>Mean</source>
        <translation>平均</translation>
    </message>
    <message>
        <source>Minimum</source>
        <translation>最小</translation>
    </message>
    <message>
        <source>Maximum</source>
        <translation>最大</translation>
    </message>
    <message>
        <source>Peak to peak</source>
        <translation>峰峰值</translation>
    </message>
    <message>
        <source>Sigma</source>
        <translation>标准差</translation>
    </message>
    <message>
        <source>Readings</source>
        <translation>读数</translation>
    </message>
    <message>
        <source>Missed</source>
        <translation>缺失</translation>
    </message>
    <message>
        <source>Since</source>
        <translation>起始</translation>
    </message>
    <message>
        <source>&amp;Reset</source>
        <translation>重置(&amp;R)</translation>
    </message>
    <message>
        <source>Cop&amp;y</source>
        <translation>复制(&amp;Y)</translation>
    </message>
</context>
<context>
    <name>StatusLabels</name>
    <message>
        <source>&lt;font color = red&gt;Close&lt;/font&gt;</source>
        <translation>&lt;font color = red&gt;已关闭&lt;/font&gt;</translation>
    </message>
    <message>
        <source>&lt;font color = blue&gt;Open&lt;/font&gt;</source>
        <translation>&lt;font color = blue&gt;已打开&lt;/font&gt;</translation>
    </message>
    <message>
        <source>&lt;font color = blue&gt;Connect&lt;/font&gt;</source>
        <translation>&lt;font color = blue&gt;已连接&lt;/font&gt;</translation>
    </message>
    <message>
        <source>&lt;font color = red&gt;Disconnect&lt;/font&gt;</source>
        <translation>&lt;font color = red&gt;已断开&lt;/font&gt;</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>停止</translation>
    </message>
    <message>
        <source>Give up opening the link (Esc)</source>
        <translation>放弃打开连接（Esc）</translation>
    </message>
</context>
<context>
    <name>SupplementaryTable</name>
    <message>
        <source>Curve</source>
        <translation>曲线</translation>
    </message>
    <message>
        <source>HPBW [°]</source>
        <translation>HPBW [°]</translation>
    </message>
    <message>
        <source>FNBW [°]</source>
        <translation>FNBW [°]</translation>
    </message>
    <message>
        <source>SLL [dB]</source>
        <translation>SLL [dB]</translation>
    </message>
    <message>
        <source>F/B [dB]</source>
        <translation>F/B [dB]</translation>
    </message>
    <message>
        <source>The curve</source>
        <translation>曲线名称</translation>
    </message>
    <message>
        <source>Half-power beam width, also across the ±180° seam</source>
        <translation>半功率波束宽度，可跨越 ±180° 接缝</translation>
    </message>
    <message>
        <source>First-null beam width</source>
        <translation>第一零点波束宽度</translation>
    </message>
    <message>
        <source>Highest side lobe relative to the peak</source>
        <translation>最高副瓣相对于峰值的电平</translation>
    </message>
    <message>
        <source>Front-to-back ratio: peak level minus the level in the opposite direction</source>
        <translation>前后比：峰值电平减去反方向电平</translation>
    </message>
    <message>
        <source>Peak [°]</source>
        <translation>峰值 [°]</translation>
    </message>
    <message>
        <source>Squint [°]</source>
        <translation>斜视角 [°]</translation>
    </message>
    <message>
        <source>Direction of the peak</source>
        <translation>峰值方向</translation>
    </message>
    <message>
        <source>Direction of the middle between the half-power points</source>
        <translation>半功率点中间的方向</translation>
    </message>
    <message>
        <source>BW %1 dB [°]</source>
        <translation>%1 dB 宽度 [°]</translation>
    </message>
    <message>
        <source>Beam width at %1 dB from the peak, also across a seam</source>
        <translation>相对峰值 %1 dB 处的波束宽度，跨越接缝亦可</translation>
    </message>
    <message>
        <source>Mean [dB]</source>
        <translation>平均 [dB]</translation>
    </message>
    <message>
        <source>Greatest [dB]</source>
        <translation>最大 [dB]</translation>
    </message>
    <message>
        <source>RMS [dB]</source>
        <translation>均方根 [dB]</translation>
    </message>
    <message>
        <source>of a difference, within 20 dB below the first curve&apos;s peak</source>
        <translation>（差值，第一条曲线峰值以下 20 dB 内）</translation>
    </message>
    <message>
        <source>Mean %1</source>
        <translation>平均值%1</translation>
    </message>
    <message>
        <source>Greatest magnitude %1</source>
        <translation>最大绝对值%1</translation>
    </message>
    <message>
        <source>Root mean square %1</source>
        <translation>均方根%1</translation>
    </message>
</context>
<context>
    <name>SweepDevices</name>
    <message>
        <source>Rotator: %1</source>
        <translation>转台：%1</translation>
    </message>
    <message>
        <source>Meter: %1</source>
        <translation>功率计：%1</translation>
    </message>
    <message>
        <source>It does not tell what it is.</source>
        <translation>仪器没有报告自己的标识。</translation>
    </message>
</context>
<context>
    <name>SweepSession</name>
    <message>
        <source>The meter measures relative to a reference; turn that off first.</source>
        <translation>功率计正在进行相对测量；请先将其关闭。</translation>
    </message>
    <message>
        <source>Frequency, offset or averaging of the meter are not those of the run.</source>
        <translation>功率计的频率、偏移或平均次数与该次测量不一致。</translation>
    </message>
    <message>
        <source>There is a run file already: %1</source>
        <translation>测量记录文件已存在：%1</translation>
    </message>
    <message>
        <source>The file exists already: %1</source>
        <translation>文件已存在：%1</translation>
    </message>
    <message>
        <source>This is no run file that can be resumed: %1</source>
        <translation>该文件不是可以继续的测量记录：%1</translation>
    </message>
    <message>
        <source>This run was begun with another plan: %1</source>
        <translation>该次测量是按另一个计划开始的：%1</translation>
    </message>
    <message>
        <source>Another program is measuring into this file: %1</source>
        <translation>另一个程序正在向该文件写入测量数据：%1</translation>
    </message>
    <message>
        <source>Nothing can be written here: %1</source>
        <translation>无法写入此处：%1</translation>
    </message>
    <message>
        <source>The table does not move on; it was stopped.</source>
        <translation>转台不再转动，已将其停止。</translation>
    </message>
    <message>
        <source>The rotator failed three times in a row (error %1).</source>
        <translation>转台连续三次出错（错误 %1）。</translation>
    </message>
    <message>
        <source>The rotator refuses the angle: it is out of its limits.</source>
        <translation>转台拒绝该角度：超出其转动范围。</translation>
    </message>
    <message>
        <source>The rotator refuses to work (error %1).</source>
        <translation>转台拒绝执行（错误 %1）。</translation>
    </message>
    <message>
        <source>The point could not be written: %1</source>
        <translation>测量点无法写入：%1</translation>
    </message>
    <message>
        <source>The meter is set otherwise than at the start.</source>
        <translation>功率计的设置与开始时不同。</translation>
    </message>
</context>
<context>
    <name>TrafficModel</name>
    <message>
        <source>to</source>
        <translation>发送</translation>
    </message>
    <message>
        <source>from</source>
        <translation>接收</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>时间</translation>
    </message>
    <message>
        <source>Direction</source>
        <translation>方向</translation>
    </message>
    <message>
        <source>Wait [ms]</source>
        <translation>等待 [ms]</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>内容</translation>
    </message>
</context>
<context>
    <name>TrafficPanel</name>
    <message>
        <source>&amp;Pause</source>
        <translation>暂停(&amp;P)</translation>
    </message>
    <message>
        <source>Traffic</source>
        <translation>通信</translation>
    </message>
    <message>
        <source>L&amp;ines that hold</source>
        <translation>包含文字的行(&amp;I)</translation>
    </message>
    <message>
        <source>Copy Line&amp;s</source>
        <translation>复制行(&amp;S)</translation>
    </message>
    <message>
        <source>Cl&amp;ear</source>
        <translation>清除(&amp;E)</translation>
    </message>
</context>
<context>
    <name>ViewActions</name>
    <message>
        <source>Manage Curves</source>
        <translation>管理曲线</translation>
    </message>
    <message>
        <source>Beam Widths</source>
        <translation>波束宽度</translation>
    </message>
    <message>
        <source>Levels below the peak in dB, for instance -3, -6, -10; none hides them:</source>
        <translation>低于峰值的电平 (dB)，例如 -3, -6, -10；留空则隐藏：</translation>
    </message>
    <message>
        <source>These are no levels: %1</source>
        <translation>这些不是电平：%1</translation>
    </message>
    <message>
        <source>Please select a curve that has such a place.</source>
        <translation>请选择具有该位置的曲线。</translation>
    </message>
</context>
<context>
    <name>WatchDesk</name>
    <message>
        <source>no reply in time</source>
        <translation>超时无应答</translation>
    </message>
    <message>
        <source>not understood</source>
        <translation>无法识别</translation>
    </message>
    <message>
        <source>refused</source>
        <translation>被拒绝</translation>
    </message>
    <message>
        <source>no link</source>
        <translation>无连接</translation>
    </message>
    <message>
        <source>Statistics</source>
        <translation>统计</translation>
    </message>
    <message>
        <source>Limits</source>
        <translation>限值</translation>
    </message>
    <message>
        <source>Traffic</source>
        <translation>通信</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>视图(&amp;V)</translation>
    </message>
    <message>
        <source>Open &amp;Record…</source>
        <translation>打开记录(&amp;R)…</translation>
    </message>
    <message>
        <source>&amp;Reconnect by itself</source>
        <translation>自动重新连接(&amp;R)</translation>
    </message>
</context>
<context>
    <name>WriteCheck</name>
    <message>
        <source>not an ordinary file</source>
        <translation>不是普通文件</translation>
    </message>
    <message>
        <source>%1 is no folder</source>
        <translation>%1 不是文件夹</translation>
    </message>
</context>
<context>
    <name>WriteNotice</name>
    <message>
        <source>Settings: %1 (%2). What you set now is forgotten at the end.</source>
        <translation>设置：%1（%2）。本次所做的设置在退出后不会保留。</translation>
    </message>
    <message>
        <source>Records: %1 (%2). No reading is recorded until you choose another folder.</source>
        <translation>记录：%1（%2）。选择其他文件夹之前，不会记录任何读数。</translation>
    </message>
    <message>
        <source>Log: %1 (%2). There will be no messages to look into.</source>
        <translation>日志：%1（%2）。将没有可供查看的消息。</translation>
    </message>
    <message>
        <source>The console cannot write everything that it keeps:</source>
        <translation>控制台无法写入以下内容：</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>注意</translation>
    </message>
    <message>
        <source>Another console runs from this folder: %1. The two write into the same records and overwrite each other&apos;s settings. Start one of them from a folder of its own.</source>
        <translation>另一个控制台正在从此文件夹运行：%1。两者会写入同一记录文件并互相覆盖设置。请让其中一个从单独的文件夹启动。</translation>
    </message>
</context>
</TS>
