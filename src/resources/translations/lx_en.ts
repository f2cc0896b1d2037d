<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>AlarmNotice</name>
    <message>
        <source>Alarm: %1</source>
        <translation>Alarm: %1</translation>
    </message>
    <message>
        <source>The limits rest</source>
        <translation>The limits rest</translation>
    </message>
</context>
<context>
    <name>Average</name>
    <message>
        <source>A&amp;verage</source>
        <translation>A&amp;verage</translation>
    </message>
    <message>
        <source>Averages the power of all shown curves</source>
        <translation>Averages the power of all shown curves</translation>
    </message>
    <message>
        <source>The shown curves have no angle in common.</source>
        <translation>The shown curves have no angle in common.</translation>
    </message>
    <message>
        <source>Average</source>
        <translation>Average</translation>
    </message>
    <message>
        <source>Average of %1 curves</source>
        <translation>Average of %1 curves</translation>
    </message>
    <message>
        <source>Mean power of %1</source>
        <translation>Mean power of %1</translation>
    </message>
</context>
<context>
    <name>Batch</name>
    <message>
        <source>The results cannot be written: %1</source>
        <translation>The results cannot be written: %1</translation>
    </message>
    <message>
        <source>The folder cannot be made: %1</source>
        <translation>The folder cannot be made: %1</translation>
    </message>
    <message>
        <source>There is no curve &quot;%1&quot; among these: %2</source>
        <translation>There is no curve &quot;%1&quot; among these: %2</translation>
    </message>
    <message>
        <source>The file could not be written, what was there is unchanged: %1: %2</source>
        <translation>The file could not be written, what was there is unchanged: %1: %2</translation>
    </message>
</context>
<context>
    <name>ChartMenu</name>
    <message>
        <source>Copy</source>
        <translation>Copy</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Paste</translation>
    </message>
    <message>
        <source>Clear Selection</source>
        <translation>Clear Selection</translation>
    </message>
    <message>
        <source>Add Marker</source>
        <translation>Add Marker</translation>
    </message>
    <message>
        <source>Delete Marker</source>
        <translation>Delete Marker</translation>
    </message>
    <message>
        <source>Marker Table</source>
        <translation>Marker Table</translation>
    </message>
    <message>
        <source>Parameter Table</source>
        <translation>Parameter Table</translation>
    </message>
    <message>
        <source>Import Graphics</source>
        <translation>Import Graphics</translation>
    </message>
    <message>
        <source>Export Graphics As CSV</source>
        <translation>Export Graphics As CSV</translation>
    </message>
    <message>
        <source>Export Graphics As Image</source>
        <translation>Export Graphics As Image</translation>
    </message>
    <message>
        <source>Symmetry</source>
        <translation>Symmetry</translation>
    </message>
    <message>
        <source>Undo Symmetry</source>
        <translation>Undo Symmetry</translation>
    </message>
    <message>
        <source>Manager Graphics</source>
        <translation>Manager Graphics</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Zoom</translation>
    </message>
    <message>
        <source>Pan</source>
        <translation>Pan</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Reset</translation>
    </message>
</context>
<context>
    <name>Compare</name>
    <message>
        <source>Comp&amp;are</source>
        <translation>Comp&amp;are</translation>
    </message>
    <message>
        <source>Makes the difference of two curves, the selected one minus the other</source>
        <translation>Makes the difference of two curves, the selected one minus the other</translation>
    </message>
    <message>
        <source>%1 minus %2</source>
        <translation>%1 minus %2</translation>
    </message>
    <message>
        <source>The two curves have no angle in common.</source>
        <translation>The two curves have no angle in common.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; minus &quot;%2&quot;, at the angles of the first</source>
        <translation>&quot;%1&quot; minus &quot;%2&quot;, at the angles of the first</translation>
    </message>
    <message>
        <source>; their frequencies differ</source>
        <translation>; their frequencies differ</translation>
    </message>
    <message>
        <source>; within 20 dB below the peak: mean %1 dB, greatest %2 dB, RMS %3 dB</source>
        <translation>; within 20 dB below the peak: mean %1 dB, greatest %2 dB, RMS %3 dB</translation>
    </message>
    <message>
        <source>Compare</source>
        <translation>Compare</translation>
    </message>
</context>
<context>
    <name>ConnectDialog</name>
    <message>
        <source>Dialog</source>
        <translation>Dialog</translation>
    </message>
    <message>
        <source>Com</source>
        <translation>Com</translation>
    </message>
    <message>
        <source>Serial port of the instrument</source>
        <translation>Serial port of the instrument</translation>
    </message>
    <message>
        <source>Serial port</source>
        <translation>Serial port</translation>
    </message>
    <message>
        <source>Baud rate</source>
        <translation>Baud rate</translation>
    </message>
    <message>
        <source>Baud rate that the instrument is set to, 1200 to 115200</source>
        <translation>Baud rate that the instrument is set to, 1200 to 115200</translation>
    </message>
    <message>
        <source>IP address</source>
        <translation>IP address</translation>
    </message>
    <message>
        <source>IP address of the instrument; its TCP port is always 5001</source>
        <translation>IP address of the instrument; its TCP port is always 5001</translation>
    </message>
    <message>
        <source>Look for serial ports once more</source>
        <translation>Look for serial ports once more</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>Refresh</translation>
    </message>
    <message>
        <source>Connect</source>
        <translation>Connect</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>Connection</translation>
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
        <translation>no folder is named</translation>
    </message>
    <message>
        <source>there is no such folder</source>
        <translation>there is no such folder</translation>
    </message>
    <message>
        <source>⚠ No rows since %1: %2</source>
        <translation>⚠ No rows since %1: %2</translation>
    </message>
    <message>
        <source>Last row: %1</source>
        <translation>Last row: %1</translation>
    </message>
    <message>
        <source>No row yet</source>
        <translation>No row yet</translation>
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
        <translation>Export csv successfully</translation>
    </message>
    <message>
        <source>Open file failed</source>
        <translation>Open file failed</translation>
    </message>
    <message>
        <source>Write file failed</source>
        <translation>Write file failed</translation>
    </message>
    <message>
        <source>Images(*.png *jpg)</source>
        <translation>Images(*.png *jpg)</translation>
    </message>
    <message>
        <source>Export image successfully</source>
        <translation>Export image successfully</translation>
    </message>
    <message>
        <source>The import file directory is empty</source>
        <translation>The import file directory is empty</translation>
    </message>
    <message>
        <source>open file error: %1</source>
        <translation>open file error: %1</translation>
    </message>
    <message>
        <source>Incorrect file format</source>
        <translation>Incorrect file format</translation>
    </message>
    <message>
        <source>No selected graphics can be exported</source>
        <translation>No selected graphics can be exported</translation>
    </message>
    <message>
        <source>Save As</source>
        <translation>Save As</translation>
    </message>
    <message>
        <source>The export file directory is empty</source>
        <translation>The export file directory is empty</translation>
    </message>
    <message>
        <source>Pasted curve</source>
        <translation>Pasted curve</translation>
    </message>
    <message>
        <source>The text is not a curve</source>
        <translation>The text is not a curve</translation>
    </message>
</context>
<context>
    <name>CurveFileReader</name>
    <message>
        <source>The file is empty.</source>
        <translation>The file is empty.</translation>
    </message>
    <message>
        <source>%1: Incorrect file format. %2</source>
        <translation>%1: Incorrect file format. %2</translation>
    </message>
    <message>
        <source>This is a folder.</source>
        <translation>This is a folder.</translation>
    </message>
    <message>
        <source>The file cannot be opened: %1</source>
        <translation>The file cannot be opened: %1</translation>
    </message>
    <message>
        <source>The file cannot be read: %1</source>
        <translation>The file cannot be read: %1</translation>
    </message>
    <message>
        <source>%1: The file holds no point.</source>
        <translation>%1: The file holds no point.</translation>
    </message>
    <message>
        <source>rows with a field that is no number and was read as 0: %1.</source>
        <translation>rows with a field that is no number and was read as 0: %1.</translation>
    </message>
    <message>
        <source>rows left out because a value is not finite: %1.</source>
        <translation>rows left out because a value is not finite: %1.</translation>
    </message>
    <message>
        <source>rows left out because they have fewer than two fields: %1.</source>
        <translation>rows left out because they have fewer than two fields: %1.</translation>
    </message>
    <message>
        <source>Opening curves</source>
        <translation>Opening curves</translation>
    </message>
    <message>
        <source>Reading %1...</source>
        <translation>Reading %1...</translation>
    </message>
    <message>
        <source>The third line is not &quot;Angle,Power&quot;, and it is no pattern file of MSI, NSMA or NEC2.</source>
        <translation>The third line is not &quot;Angle,Power&quot;, and it is no pattern file of MSI, NSMA or NEC2.</translation>
    </message>
    <message>
        <source>%1: The text is encoded as %2, not as UTF-8.</source>
        <translation>%1: The text is encoded as %2, not as UTF-8.</translation>
    </message>
    <message>
        <source>rows with more than two fields, of which the first two were read: %1. Decimal commas need semicolons, tabs or blanks between the fields.</source>
        <translation>rows with more than two fields, of which the first two were read: %1. Decimal commas need semicolons, tabs or blanks between the fields.</translation>
    </message>
    <message>
        <source>Names</source>
        <translation>Names</translation>
    </message>
    <message>
        <source>The names of %1 curves are taken:
%2</source>
        <translation>The names of %1 curves are taken:
%2</translation>
    </message>
    <message>
        <source>&amp;Number All</source>
        <translation>&amp;Number All</translation>
    </message>
    <message>
        <source>&amp;Ask for Each</source>
        <translation>&amp;Ask for Each</translation>
    </message>
    <message>
        <source>&amp;Cancel All</source>
        <translation>&amp;Cancel All</translation>
    </message>
    <message>
        <source>Drawing %1...</source>
        <translation>Drawing %1...</translation>
    </message>
</context>
<context>
    <name>CurveHistory</name>
    <message>
        <source>Remove</source>
        <translation>Remove</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Paste</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Rename</translation>
    </message>
    <message>
        <source>Recolour</source>
        <translation>Recolour</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Edit</translation>
    </message>
</context>
<context>
    <name>CurveName</name>
    <message>
        <source>Warning</source>
        <translation>Warning</translation>
    </message>
    <message>
        <source>Existing frequency!
 Please modify the name</source>
        <translation>Existing frequency!
 Please modify the name</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>A curve needs a name.</source>
        <translation>A curve needs a name.</translation>
    </message>
</context>
<context>
    <name>CurveTableModel</name>
    <message>
        <source>Pasted or dropped</source>
        <translation>Pasted or dropped</translation>
    </message>
    <message>
        <source>The frequency lies outside the loss table: the correction is extrapolated.</source>
        <translation>The frequency lies outside the loss table: the correction is extrapolated.</translation>
    </message>
    <message>
        <source>Curve</source>
        <translation>Curve</translation>
    </message>
    <message>
        <source>Material</source>
        <translation>Material</translation>
    </message>
    <message>
        <source>Points</source>
        <translation>Points</translation>
    </message>
    <message>
        <source>There is another curve called &quot;%1&quot;.</source>
        <translation>There is another curve called &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no frequency: write 2450 for 2450 MHz, or 2.45 GHz.</source>
        <translation>&quot;%1&quot; is no frequency: write 2450 for 2450 MHz, or 2.45 GHz.</translation>
    </message>
    <message>
        <source>Frequency
(MHz)</source>
        <translation>Frequency
(MHz)</translation>
    </message>
    <message>
        <source>Loss
correction</source>
        <translation>Loss
correction</translation>
    </message>
    <message>
        <source>A curve needs a name.</source>
        <translation>A curve needs a name.</translation>
    </message>
</context>
<context>
    <name>CutDialog</name>
    <message>
        <source>Open %1</source>
        <translation>Open %1</translation>
    </message>
    <message>
        <source>total</source>
        <translation>total</translation>
    </message>
    <message>
        <source>vertical</source>
        <translation>vertical</translation>
    </message>
    <message>
        <source>horizontal</source>
        <translation>horizontal</translation>
    </message>
    <message>
        <source>&amp;All</source>
        <translation>&amp;All</translation>
    </message>
    <message>
        <source>&amp;None</source>
        <translation>&amp;None</translation>
    </message>
    <message>
        <source>The file holds %1 cuts.</source>
        <translation>The file holds %1 cuts.</translation>
    </message>
    <message>
        <source>&amp;Field:</source>
        <translation>&amp;Field:</translation>
    </message>
</context>
<context>
    <name>EditActions</name>
    <message>
        <source>&amp;Undo %1</source>
        <translation>&amp;Undo %1</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Undo</translation>
    </message>
    <message>
        <source>Re&amp;do %1</source>
        <translation>Re&amp;do %1</translation>
    </message>
    <message>
        <source>Re&amp;do</source>
        <translation>Re&amp;do</translation>
    </message>
    <message>
        <source>There is no curve on the clipboard.</source>
        <translation>There is no curve on the clipboard.</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Paste</translation>
    </message>
    <message>
        <source>The parameter table is on the clipboard.</source>
        <translation>The parameter table is on the clipboard.</translation>
    </message>
    <message>
        <source>Pasted curve</source>
        <translation>Pasted curve</translation>
    </message>
</context>
<context>
    <name>Envelope</name>
    <message>
        <source>&amp;Envelope</source>
        <translation>&amp;Envelope</translation>
    </message>
    <message>
        <source>Makes the greatest and the least level of all shown curves</source>
        <translation>Makes the greatest and the least level of all shown curves</translation>
    </message>
    <message>
        <source>Envelope</source>
        <translation>Envelope</translation>
    </message>
    <message>
        <source>Maximum of %1 curves</source>
        <translation>Maximum of %1 curves</translation>
    </message>
    <message>
        <source>Greatest level of %1</source>
        <translation>Greatest level of %1</translation>
    </message>
    <message>
        <source>Minimum of %1 curves</source>
        <translation>Minimum of %1 curves</translation>
    </message>
    <message>
        <source>Least level of %1</source>
        <translation>Least level of %1</translation>
    </message>
</context>
<context>
    <name>ExportDialog</name>
    <message>
        <source>none</source>
        <translation>none</translation>
    </message>
    <message>
        <source>Export Pattern</source>
        <translation>Export Pattern</translation>
    </message>
    <message>
        <source>MSI or Planet</source>
        <translation>MSI or Planet</translation>
    </message>
    <message>
        <source>NSMA (WG16.99.050)</source>
        <translation>NSMA (WG16.99.050)</translation>
    </message>
    <message>
        <source>NEC2 listing</source>
        <translation>NEC2 listing</translation>
    </message>
    <message>
        <source>The curves go out as they stand; MSI takes whole circles, on whole degrees. Edit - Mirror Curve turns the sense of the angles.</source>
        <translation>The curves go out as they stand; MSI takes whole circles, on whole degrees. Edit - Mirror Curve turns the sense of the angles.</translation>
    </message>
    <message>
        <source>&amp;Format:</source>
        <translation>&amp;Format:</translation>
    </message>
    <message>
        <source>&amp;Horizontal cut:</source>
        <translation>&amp;Horizontal cut:</translation>
    </message>
    <message>
        <source>&amp;Vertical cut:</source>
        <translation>&amp;Vertical cut:</translation>
    </message>
</context>
<context>
    <name>GainByComparison</name>
    <message>
        <source>&amp;Gain by Comparison...</source>
        <translation>&amp;Gain by Comparison...</translation>
    </message>
    <message>
        <source>Turns the selected curve into dBi by a reference antenna of known gain</source>
        <translation>Turns the selected curve into dBi by a reference antenna of known gain</translation>
    </message>
    <message>
        <source>%1, dBi</source>
        <translation>%1, dBi</translation>
    </message>
    <message>
        <source>Gain of &quot;%1&quot; by comparison with &quot;%2&quot;: G = G_ref + P - P_ref + L - L_ref with G_ref %3 dBi, P_ref %4 dBm, L %5 dB, L_ref %6 dB</source>
        <translation>Gain of &quot;%1&quot; by comparison with &quot;%2&quot;: G = G_ref + P - P_ref + L - L_ref with G_ref %3 dBi, P_ref %4 dBm, L %5 dB, L_ref %6 dB</translation>
    </message>
    <message>
        <source>; their frequencies differ</source>
        <translation>; their frequencies differ</translation>
    </message>
    <message>
        <source>Gain by Comparison</source>
        <translation>Gain by Comparison</translation>
    </message>
    <message>
        <source>&amp;Reference:</source>
        <translation>&amp;Reference:</translation>
    </message>
    <message>
        <source>Its &amp;gain:</source>
        <translation>Its &amp;gain:</translation>
    </message>
    <message>
        <source>The gain of the reference antenna at this frequency</source>
        <translation>The gain of the reference antenna at this frequency</translation>
    </message>
    <message>
        <source>Its &amp;level:</source>
        <translation>Its &amp;level:</translation>
    </message>
    <message>
        <source>Measured where the reference looks at the source: its peak</source>
        <translation>Measured where the reference looks at the source: its peak</translation>
    </message>
    <message>
        <source>Lo&amp;ss:</source>
        <translation>Lo&amp;ss:</translation>
    </message>
    <message>
        <source>Of cables and attenuators when the antenna was measured</source>
        <translation>Of cables and attenuators when the antenna was measured</translation>
    </message>
    <message>
        <source>Loss, re&amp;ference:</source>
        <translation>Loss, re&amp;ference:</translation>
    </message>
    <message>
        <source>Of cables and attenuators when the reference was measured</source>
        <translation>Of cables and attenuators when the reference was measured</translation>
    </message>
</context>
<context>
    <name>GraphicsBase</name>
    <message>
        <source>Last %1 minutes</source>
        <translation>Last %1 minutes</translation>
    </message>
    <message>
        <source>Power[dBm]</source>
        <translation>Power[dBm]</translation>
    </message>
    <message>
        <source>Please select the target graph</source>
        <translation>Please select the target graph</translation>
    </message>
    <message>
        <source>Chart</source>
        <translation>Chart</translation>
    </message>
</context>
<context>
    <name>KeyboardSplitter</name>
    <message>
        <source>Border between panes, moved with the arrow keys</source>
        <translation>Border between panes, moved with the arrow keys</translation>
    </message>
</context>
<context>
    <name>LimitWatch</name>
    <message>
        <source>above %1</source>
        <translation>above %1</translation>
    </message>
    <message>
        <source>below %1</source>
        <translation>below %1</translation>
    </message>
</context>
<context>
    <name>LimitsPanel</name>
    <message>
        <source>&amp;Upper limit</source>
        <translation>&amp;Upper limit</translation>
    </message>
    <message>
        <source>Upper limit</source>
        <translation>Upper limit</translation>
    </message>
    <message>
        <source>Lower limit</source>
        <translation>Lower limit</translation>
    </message>
    <message>
        <source>An alarm ends once the level is back by as much</source>
        <translation>An alarm ends once the level is back by as much</translation>
    </message>
    <message>
        <source>So many readings beyond a limit, one after the other, are an alarm</source>
        <translation>So many readings beyond a limit, one after the other, are an alarm</translation>
    </message>
    <message>
        <source>L&amp;atched</source>
        <translation>L&amp;atched</translation>
    </message>
    <message>
        <source>An alarm stays until it is acknowledged</source>
        <translation>An alarm stays until it is acknowledged</translation>
    </message>
    <message>
        <source>Ac&amp;knowledge</source>
        <translation>Ac&amp;knowledge</translation>
    </message>
    <message>
        <source>No limits are watched.</source>
        <translation>No limits are watched.</translation>
    </message>
    <message>
        <source>The lower limit must lie below the upper one.</source>
        <translation>The lower limit must lie below the upper one.</translation>
    </message>
    <message>
        <source>The limits rest during the relative measurement.</source>
        <translation>The limits rest during the relative measurement.</translation>
    </message>
    <message>
        <source>No reading.</source>
        <translation>No reading.</translation>
    </message>
    <message>
        <source>Inside the limits.</source>
        <translation>Inside the limits.</translation>
    </message>
    <message>
        <source>Above the upper limit.</source>
        <translation>Above the upper limit.</translation>
    </message>
    <message>
        <source>Below the lower limit.</source>
        <translation>Below the lower limit.</translation>
    </message>
    <message>
        <source>Alarm: %1</source>
        <translation>Alarm: %1</translation>
    </message>
    <message>
        <source>Lo&amp;wer limit</source>
        <translation>Lo&amp;wer limit</translation>
    </message>
    <message>
        <source>Hys&amp;teresis</source>
        <translation>Hys&amp;teresis</translation>
    </message>
    <message>
        <source>Readings i&amp;n a row</source>
        <translation>Readings i&amp;n a row</translation>
    </message>
</context>
<context>
    <name>LineEdit</name>
    <message>
        <source>Range:%1-%2</source>
        <translation>Range:%1-%2</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Number</translation>
    </message>
</context>
<context>
    <name>LinkSession</name>
    <message>
        <source>Connecting to %1 …</source>
        <translation>Connecting to %1 …</translation>
    </message>
    <message>
        <source>Waiting for the identity …</source>
        <translation>Waiting for the identity …</translation>
    </message>
    <message>
        <source>Waiting for the frequency …</source>
        <translation>Waiting for the frequency …</translation>
    </message>
    <message>
        <source>Waiting for the average count …</source>
        <translation>Waiting for the average count …</translation>
    </message>
    <message>
        <source>Waiting for the relative state …</source>
        <translation>Waiting for the relative state …</translation>
    </message>
    <message>
        <source>Waiting for the offset …</source>
        <translation>Waiting for the offset …</translation>
    </message>
    <message>
        <source>Waiting for the power unit …</source>
        <translation>Waiting for the power unit …</translation>
    </message>
    <message>
        <source>The connection to the instrument is lost.</source>
        <translation>The connection to the instrument is lost.</translation>
    </message>
</context>
<context>
    <name>ListChart</name>
    <message>
        <source>&amp;Title</source>
        <translation>&amp;Title</translation>
    </message>
    <message>
        <source>Title of the charts, of exported curves and of the report</source>
        <translation>Title of the charts, of exported curves and of the report</translation>
    </message>
    <message>
        <source>Title of the charts</source>
        <translation>Title of the charts</translation>
    </message>
    <message>
        <source>Levels from</source>
        <translation>Levels from</translation>
    </message>
    <message>
        <source>Lowest level shown, dB</source>
        <translation>Lowest level shown, dB</translation>
    </message>
    <message>
        <source>to</source>
        <translation>to</translation>
    </message>
    <message>
        <source>Highest level shown, dB</source>
        <translation>Highest level shown, dB</translation>
    </message>
    <message>
        <source>dB</source>
        <translation>dB</translation>
    </message>
    <message>
        <source>Chooses the ranges of both charts from the curves</source>
        <translation>Chooses the ranges of both charts from the curves</translation>
    </message>
    <message>
        <source>&amp;Fit to data</source>
        <translation>&amp;Fit to data</translation>
    </message>
    <message>
        <source>Curves</source>
        <translation>Curves</translation>
    </message>
    <message>
        <source>Points of the curves</source>
        <translation>Points of the curves</translation>
    </message>
    <message>
        <source>Pattern parameters</source>
        <translation>Pattern parameters</translation>
    </message>
    <message>
        <source>Textbook definitions, apart from the pattern parameters</source>
        <translation>Textbook definitions, apart from the pattern parameters</translation>
    </message>
    <message>
        <source>Supplementary</source>
        <translation>Supplementary</translation>
    </message>
    <message>
        <source>Supplementary figures by curve</source>
        <translation>Supplementary figures by curve</translation>
    </message>
    <message>
        <source>Polar chart</source>
        <translation>Polar chart</translation>
    </message>
    <message>
        <source>Cartesian chart</source>
        <translation>Cartesian chart</translation>
    </message>
    <message>
        <source>Unnamed curve</source>
        <translation>Unnamed curve</translation>
    </message>
    <message>
        <source>Radiation patterns</source>
        <translation>Radiation patterns</translation>
    </message>
    <message>
        <source>Curve</source>
        <translation>Curve</translation>
    </message>
    <message>
        <source>The lowest level has to be below the highest one.</source>
        <translation>The lowest level has to be below the highest one.</translation>
    </message>
    <message>
        <source>Angle [°]</source>
        <translation>Angle [°]</translation>
    </message>
    <message>
        <source>Level [dB]</source>
        <translation>Level [dB]</translation>
    </message>
    <message>
        <source>Nulls from</source>
        <translation>Nulls from</translation>
    </message>
    <message>
        <source>Least prominence of a null, dB</source>
        <translation>Least prominence of a null, dB</translation>
    </message>
    <message>
        <source>A minimum is a null when the level rises by at least this much on both of its sides</source>
        <translation>A minimum is a null when the level rises by at least this much on both of its sides</translation>
    </message>
    <message>
        <source>Open a file (Ctrl+O), drop files here, paste two columns of numbers, or begin with File, Open Samples.</source>
        <translation>Open a file (Ctrl+O), drop files here, paste two columns of numbers, or begin with File, Open Samples.</translation>
    </message>
</context>
<context>
    <name>LoadMask</name>
    <message>
        <source>&amp;Load Mask...</source>
        <translation>&amp;Load Mask...</translation>
    </message>
    <message>
        <source>Draws a limit line from a file of angles and levels; the report judges by it</source>
        <translation>Draws a limit line from a file of angles and levels; the report judges by it</translation>
    </message>
    <message>
        <source>Load Mask</source>
        <translation>Load Mask</translation>
    </message>
    <message>
        <source>Masks (*.csv *.txt);;All files (*)</source>
        <translation>Masks (*.csv *.txt);;All files (*)</translation>
    </message>
    <message>
        <source>The mask cannot be read: %1</source>
        <translation>The mask cannot be read: %1</translation>
    </message>
    <message>
        <source>A limit that curves are to stay below</source>
        <translation>A limit that curves are to stay below</translation>
    </message>
    <message>
        <source>Mask %1</source>
        <translation>Mask %1</translation>
    </message>
</context>
<context>
    <name>LoadingDialog</name>
    <message>
        <source>Dialog</source>
        <translation>Dialog</translation>
    </message>
    <message>
        <source>%1,waiting...%2 s</source>
        <translation>%1,waiting...%2 s</translation>
    </message>
</context>
<context>
    <name>LossActions</name>
    <message>
        <source>Load Loss Table</source>
        <translation>Load Loss Table</translation>
    </message>
    <message>
        <source>Loss tables (*.csv);;All files (*)</source>
        <translation>Loss tables (*.csv);;All files (*)</translation>
    </message>
    <message>
        <source>The loss table could not be loaded: %1
%2</source>
        <translation>The loss table could not be loaded: %1
%2</translation>
    </message>
    <message>
        <source>Loss table loaded: %1</source>
        <translation>Loss table loaded: %1</translation>
    </message>
    <message>
        <source>Please enter the frequency of &quot;%1&quot; in the list of curves first.</source>
        <translation>Please enter the frequency of &quot;%1&quot; in the list of curves first.</translation>
    </message>
    <message>
        <source>The loss table cannot tell the loss at %1 MHz.</source>
        <translation>The loss table cannot tell the loss at %1 MHz.</translation>
    </message>
    <message>
        <source>up-link %1%2 dB</source>
        <translation>up-link %1%2 dB</translation>
    </message>
    <message>
        <source>down-link %1%2 dB</source>
        <translation>down-link %1%2 dB</translation>
    </message>
    <message>
        <source>%1, up-link</source>
        <translation>%1, up-link</translation>
    </message>
    <message>
        <source>%1, down-link</source>
        <translation>%1, down-link</translation>
    </message>
    <message>
        <source>%1 (extrapolated)</source>
        <translation>%1 (extrapolated)</translation>
    </message>
    <message>
        <source>Correct Up-link</source>
        <translation>Correct Up-link</translation>
    </message>
    <message>
        <source>Correct Down-link</source>
        <translation>Correct Down-link</translation>
    </message>
</context>
<context>
    <name>LossCorrection</name>
    <message>
        <source>This is a folder.</source>
        <translation>This is a folder.</translation>
    </message>
    <message>
        <source>The file cannot be opened: %1</source>
        <translation>The file cannot be opened: %1</translation>
    </message>
    <message>
        <source>The table has no &quot;upside&quot; and no &quot;downside&quot; row.</source>
        <translation>The table has no &quot;upside&quot; and no &quot;downside&quot; row.</translation>
    </message>
    <message>
        <source>This is no loss table: it has no header row with &quot;category&quot;.</source>
        <translation>This is no loss table: it has no header row with &quot;category&quot;.</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>MZ6218 Power Meter</source>
        <translation>MZ6218 Power Meter</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>Connection</translation>
    </message>
    <message>
        <source>Serial port of the instrument</source>
        <translation>Serial port of the instrument</translation>
    </message>
    <message>
        <source>Serial port</source>
        <translation>Serial port</translation>
    </message>
    <message>
        <source>Open the serial port at 115200 baud</source>
        <translation>Open the serial port at 115200 baud</translation>
    </message>
    <message>
        <source>Open the serial port</source>
        <translation>Open the serial port</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Open</translation>
    </message>
    <message>
        <source>Close the serial port</source>
        <translation>Close the serial port</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Close</translation>
    </message>
    <message>
        <source>Frequency(1KHz~40GHz)</source>
        <translation>Frequency(1KHz~40GHz)</translation>
    </message>
    <message>
        <source>Measurement frequency, 1 kHz to 40 GHz; Enter sends it</source>
        <translation>Measurement frequency, 1 kHz to 40 GHz; Enter sends it</translation>
    </message>
    <message>
        <source>Frequency</source>
        <translation>Frequency</translation>
    </message>
    <message>
        <source>Unit of the frequency</source>
        <translation>Unit of the frequency</translation>
    </message>
    <message>
        <source>Send the frequency to the instrument</source>
        <translation>Send the frequency to the instrument</translation>
    </message>
    <message>
        <source>Set the frequency</source>
        <translation>Set the frequency</translation>
    </message>
    <message>
        <source>Set</source>
        <translation>Set</translation>
    </message>
    <message>
        <source>Offset(-100~100)</source>
        <translation>Offset(-100~100)</translation>
    </message>
    <message>
        <source>Offset added to the power, -100 to 100 dB; Enter sends it</source>
        <translation>Offset added to the power, -100 to 100 dB; Enter sends it</translation>
    </message>
    <message>
        <source>Offset in dB</source>
        <translation>Offset in dB</translation>
    </message>
    <message>
        <source>dB</source>
        <translation>dB</translation>
    </message>
    <message>
        <source>Send the offset to the instrument</source>
        <translation>Send the offset to the instrument</translation>
    </message>
    <message>
        <source>Set the offset</source>
        <translation>Set the offset</translation>
    </message>
    <message>
        <source>Average count</source>
        <translation>Average count</translation>
    </message>
    <message>
        <source>Readings averaged, 1 to 1024; Enter sends the count</source>
        <translation>Readings averaged, 1 to 1024; Enter sends the count</translation>
    </message>
    <message>
        <source>Send the average count to the instrument</source>
        <translation>Send the average count to the instrument</translation>
    </message>
    <message>
        <source>Set the average count</source>
        <translation>Set the average count</translation>
    </message>
    <message>
        <source>Measurement of relative state</source>
        <translation>Measurement of relative state</translation>
    </message>
    <message>
        <source>Measure relative to the present power; once more takes a new reference</source>
        <translation>Measure relative to the present power; once more takes a new reference</translation>
    </message>
    <message>
        <source>ON / Update</source>
        <translation>ON / Update</translation>
    </message>
    <message>
        <source>Measure the power itself</source>
        <translation>Measure the power itself</translation>
    </message>
    <message>
        <source>OFF</source>
        <translation>OFF</translation>
    </message>
    <message>
        <source>Power unit</source>
        <translation>Power unit</translation>
    </message>
    <message>
        <source>Show the power in dBm</source>
        <translation>Show the power in dBm</translation>
    </message>
    <message>
        <source>dBm</source>
        <translation>dBm</translation>
    </message>
    <message>
        <source>Show the power in watts</source>
        <translation>Show the power in watts</translation>
    </message>
    <message>
        <source>Watt</source>
        <translation>Watt</translation>
    </message>
    <message>
        <source>System</source>
        <translation>System</translation>
    </message>
    <message>
        <source>Zero the sensor (F7); takes up to 30 seconds</source>
        <translation>Zero the sensor (F7); takes up to 30 seconds</translation>
    </message>
    <message>
        <source>Set Zero</source>
        <translation>Set Zero</translation>
    </message>
    <message>
        <source>Calibrate the sensor (F8); takes up to 30 seconds</source>
        <translation>Calibrate the sensor (F8); takes up to 30 seconds</translation>
    </message>
    <message>
        <source>Calibration</source>
        <translation>Calibration</translation>
    </message>
    <message>
        <source>Chart</source>
        <translation>Chart</translation>
    </message>
    <message>
        <source>Time that the chart shows, 1 to 10 minutes</source>
        <translation>Time that the chart shows, 1 to 10 minutes</translation>
    </message>
    <message>
        <source>Period of the chart in minutes</source>
        <translation>Period of the chart in minutes</translation>
    </message>
    <message>
        <source>Minutes</source>
        <translation>Minutes</translation>
    </message>
    <message>
        <source>Show that time on the chart</source>
        <translation>Show that time on the chart</translation>
    </message>
    <message>
        <source>Set the period of the chart</source>
        <translation>Set the period of the chart</translation>
    </message>
    <message>
        <source>Empty the chart and start it again (F5)</source>
        <translation>Empty the chart and start it again (F5)</translation>
    </message>
    <message>
        <source>Replot</source>
        <translation>Replot</translation>
    </message>
    <message>
        <source>Data Record</source>
        <translation>Data Record</translation>
    </message>
    <message>
        <source>Time between two records, 1 to 30 minutes; a new one counts from Reset or the next connection</source>
        <translation>Time between two records, 1 to 30 minutes; a new one counts from Reset or the next connection</translation>
    </message>
    <message>
        <source>Interval of the records in minutes</source>
        <translation>Interval of the records in minutes</translation>
    </message>
    <message>
        <source>Record now (F6) and count the interval from here</source>
        <translation>Record now (F6) and count the interval from here</translation>
    </message>
    <message>
        <source>Record now and restart the interval</source>
        <translation>Record now and restart the interval</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Reset</translation>
    </message>
    <message>
        <source>Folder of the records</source>
        <translation>Folder of the records</translation>
    </message>
    <message>
        <source>Choose the folder of the records</source>
        <translation>Choose the folder of the records</translation>
    </message>
    <message>
        <source>Power</source>
        <translation>Power</translation>
    </message>
    <message>
        <source>Power in dBm</source>
        <translation>Power in dBm</translation>
    </message>
    <message>
        <source>Power in the instrument&apos;s unit</source>
        <translation>Power in the instrument&apos;s unit</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;File</translation>
    </message>
    <message>
        <source>&amp;Communication</source>
        <translation>&amp;Communication</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>Tools</translation>
    </message>
    <message>
        <source>Tool bar</source>
        <translation>Tool bar</translation>
    </message>
    <message>
        <source>Connect</source>
        <translation>Connect</translation>
    </message>
    <message>
        <source>Disconnect</source>
        <translation>Disconnect</translation>
    </message>
    <message>
        <source>Communication by Serial</source>
        <translation>Communication by Serial</translation>
    </message>
    <message>
        <source>Communication by LAN</source>
        <translation>Communication by LAN</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Start</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Stop</translation>
    </message>
    <message>
        <source>IP Config</source>
        <translation>IP Config</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Export</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>Import</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Exit</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Help</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Note</translation>
    </message>
    <message>
        <source>Info</source>
        <translation>Info</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Warning</translation>
    </message>
    <message>
        <source>Set zero</source>
        <translation>Set zero</translation>
    </message>
    <message>
        <source>%1 time out!</source>
        <translation>%1 time out!</translation>
    </message>
    <message>
        <source>Set zero success!</source>
        <translation>Set zero success!</translation>
    </message>
    <message>
        <source>Set zero failed!</source>
        <translation>Set zero failed!</translation>
    </message>
    <message>
        <source>Calibration success!</source>
        <translation>Calibration success!</translation>
    </message>
    <message>
        <source>Calibration failed!</source>
        <translation>Calibration failed!</translation>
    </message>
    <message>
        <source>Last %1 minutes</source>
        <translation>Last %1 minutes</translation>
    </message>
    <message>
        <source>Save Dir</source>
        <translation>Save Dir</translation>
    </message>
    <message>
        <source>No directory selected.</source>
        <translation>No directory selected.</translation>
    </message>
    <message>
        <source>%1/%2</source>
        <translation>%1/%2</translation>
    </message>
    <message>
        <source>Relative measurement on</source>
        <translation>Relative measurement on</translation>
    </message>
    <message>
        <source>Relative measurement off</source>
        <translation>Relative measurement off</translation>
    </message>
    <message>
        <source>Power unit dBm</source>
        <translation>Power unit dBm</translation>
    </message>
    <message>
        <source>Power unit watt</source>
        <translation>Power unit watt</translation>
    </message>
    <message>
        <source>&amp;Language</source>
        <translation>&amp;Language</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Help</translation>
    </message>
    <message>
        <source>&amp;Manual</source>
        <translation>&amp;Manual</translation>
    </message>
    <message>
        <source>Records are not written: %1</source>
        <translation>Records are not written: %1</translation>
    </message>
    <message>
        <source>%1 was not confirmed. Polling rests until it is set again or the link is opened anew.</source>
        <translation>%1 was not confirmed. Polling rests until it is set again or the link is opened anew.</translation>
    </message>
    <message>
        <source>No records can be written to &quot;%1&quot;: %2. The folder stays as it was.</source>
        <translation>No records can be written to &quot;%1&quot;: %2. The folder stays as it was.</translation>
    </message>
    <message>
        <source>%1 was not confirmed.</source>
        <translation>%1 was not confirmed.</translation>
    </message>
</context>
<context>
    <name>ManagerGraph</name>
    <message>
        <source>Manage Graph</source>
        <translation>Manage Graph</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Description</translation>
    </message>
    <message>
        <source>State</source>
        <translation>State</translation>
    </message>
    <message>
        <source>Line Color</source>
        <translation>Line Color</translation>
    </message>
    <message>
        <source>Line Width</source>
        <translation>Line Width</translation>
    </message>
    <message>
        <source>Curves</source>
        <translation>Curves</translation>
    </message>
    <message>
        <source>Default</source>
        <translation>Default</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Double-click to edit</source>
        <translation>Double-click to edit</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Show</translation>
    </message>
    <message>
        <source>Show %1</source>
        <translation>Show %1</translation>
    </message>
    <message>
        <source>Line width of %1</source>
        <translation>Line width of %1</translation>
    </message>
    <message>
        <source>Restore state, color and width as they were when this window was opened</source>
        <translation>Restore state, color and width as they were when this window was opened</translation>
    </message>
    <message>
        <source>Choose the line color</source>
        <translation>Choose the line color</translation>
    </message>
    <message>
        <source>Line color of %1</source>
        <translation>Line color of %1</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancel</translation>
    </message>
</context>
<context>
    <name>Manual</name>
    <message>
        <source>The manual is the file help.pdf beside the program, in %1. It is not there.</source>
        <translation>The manual is the file help.pdf beside the program, in %1. It is not there.</translation>
    </message>
    <message>
        <source>No program opens the manual. It is the file %1.</source>
        <translation>No program opens the manual. It is the file %1.</translation>
    </message>
    <message>
        <source>Manual</source>
        <translation>Manual</translation>
    </message>
</context>
<context>
    <name>MarkTable</name>
    <message>
        <source>Markers</source>
        <translation>Markers</translation>
    </message>
    <message>
        <source>Marker</source>
        <translation>Marker</translation>
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
        <translation>Angle</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>Level</translation>
    </message>
</context>
<context>
    <name>Mask</name>
    <message>
        <source>Not an angle and a level.</source>
        <translation>Not an angle and a level.</translation>
    </message>
    <message>
        <source>The angles do not ascend.</source>
        <translation>The angles do not ascend.</translation>
    </message>
    <message>
        <source>A mask takes two rows of an angle and a level at least.</source>
        <translation>A mask takes two rows of an angle and a level at least.</translation>
    </message>
</context>
<context>
    <name>MeasureDialog</name>
    <message>
        <source>Resume Measuring a Pattern</source>
        <translation>Resume Measuring a Pattern</translation>
    </message>
    <message>
        <source>Measure Pattern</source>
        <translation>Measure Pattern</translation>
    </message>
    <message>
        <source>Devices</source>
        <translation>Devices</translation>
    </message>
    <message>
        <source>Angles</source>
        <translation>Angles</translation>
    </message>
    <message>
        <source>Readings</source>
        <translation>Readings</translation>
    </message>
    <message>
        <source>Curve</source>
        <translation>Curve</translation>
    </message>
    <message>
        <source>Check first: nothing moves before both devices have answered.</source>
        <translation>Check first: nothing moves before both devices have answered.</translation>
    </message>
    <message>
        <source>What the devices told</source>
        <translation>What the devices told</translation>
    </message>
    <message>
        <source>Chec&amp;k</source>
        <translation>Chec&amp;k</translation>
    </message>
    <message>
        <source>&amp;Start</source>
        <translation>&amp;Start</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>LAN</source>
        <translation>LAN</translation>
    </message>
    <message>
        <source>Serial port</source>
        <translation>Serial port</translation>
    </message>
    <message>
        <source>&amp;Meter:</source>
        <translation>&amp;Meter:</translation>
    </message>
    <message>
        <source>HOST or HOST:PORT; with a serial port PORT or PORT:BAUD</source>
        <translation>HOST or HOST:PORT; with a serial port PORT or PORT:BAUD</translation>
    </message>
    <message>
        <source>HOST or HOST:PORT of rotctld, port 4533 unless given</source>
        <translation>HOST or HOST:PORT of rotctld, port 4533 unless given</translation>
    </message>
    <message>
        <source>&amp;From:</source>
        <translation>&amp;From:</translation>
    </message>
    <message>
        <source>&amp;To:</source>
        <translation>&amp;To:</translation>
    </message>
    <message>
        <source>Ste&amp;p:</source>
        <translation>Ste&amp;p:</translation>
    </message>
    <message>
        <source>&amp;Zero at:</source>
        <translation>&amp;Zero at:</translation>
    </message>
    <message>
        <source>The table&apos;s angle at which the antenna&apos;s front looks at the source</source>
        <translation>The table&apos;s angle at which the antenna&apos;s front looks at the source</translation>
    </message>
    <message>
        <source>S&amp;ense:</source>
        <translation>S&amp;ense:</translation>
    </message>
    <message>
        <source>Whether the curve&apos;s angle grows as the table&apos;s does</source>
        <translation>Whether the curve&apos;s angle grows as the table&apos;s does</translation>
    </message>
    <message>
        <source>As the table</source>
        <translation>As the table</translation>
    </message>
    <message>
        <source>Opposite</source>
        <translation>Opposite</translation>
    </message>
    <message>
        <source>Turn &amp;back at the end</source>
        <translation>Turn &amp;back at the end</translation>
    </message>
    <message>
        <source>From the table&apos;s arrival to the first reading</source>
        <translation>From the table&apos;s arrival to the first reading</translation>
    </message>
    <message>
        <source>Rea&amp;dings a point:</source>
        <translation>Rea&amp;dings a point:</translation>
    </message>
    <message>
        <source>Their mean is taken in milliwatts; one more is thrown away first</source>
        <translation>Their mean is taken in milliwatts; one more is thrown away first</translation>
    </message>
    <message>
        <source>Fl&amp;oor:</source>
        <translation>Fl&amp;oor:</translation>
    </message>
    <message>
        <source>Level with the source off</source>
        <translation>Level with the source off</translation>
    </message>
    <message>
        <source>Level with the source off; points within 10 dB of it are marked</source>
        <translation>Level with the source off; points within 10 dB of it are marked</translation>
    </message>
    <message>
        <source>T&amp;itle:</source>
        <translation>T&amp;itle:</translation>
    </message>
    <message>
        <source>The name of the curve</source>
        <translation>The name of the curve</translation>
    </message>
    <message>
        <source>Curve file</source>
        <translation>Curve file</translation>
    </message>
    <message>
        <source>Every point is kept at once in NAME.run.csv beside it</source>
        <translation>Every point is kept at once in NAME.run.csv beside it</translation>
    </message>
    <message>
        <source>Fi&amp;le:</source>
        <translation>Fi&amp;le:</translation>
    </message>
    <message>
        <source>Its largest dimension, for the hint on the distance</source>
        <translation>Its largest dimension, for the hint on the distance</translation>
    </message>
    <message>
        <source>The address of the meter or of the rotator is none.</source>
        <translation>The address of the meter or of the rotator is none.</translation>
    </message>
    <message>
        <source>Asking both devices...</source>
        <translation>Asking both devices...</translation>
    </message>
    <message>
        <source>The meter does not answer: %1</source>
        <translation>The meter does not answer: %1</translation>
    </message>
    <message>
        <source>The rotator does not answer: %1</source>
        <translation>The rotator does not answer: %1</translation>
    </message>
    <message>
        <source>no reading</source>
        <translation>no reading</translation>
    </message>
    <message>
        <source>Meter: %1, %2, now %3</source>
        <translation>Meter: %1, %2, now %3</translation>
    </message>
    <message>
        <source>Rotator: %1, turns from %2° to %3°, stands at %4°</source>
        <translation>Rotator: %1, turns from %2° to %3°, stands at %4°</translation>
    </message>
    <message>
        <source>Rotator: %1, limits not told, stands at %2°</source>
        <translation>Rotator: %1, limits not told, stands at %2°</translation>
    </message>
    <message>
        <source>The meter measures relative to a reference; turn that off first.</source>
        <translation>The meter measures relative to a reference; turn that off first.</translation>
    </message>
    <message>
        <source>%1 points</source>
        <translation>%1 points</translation>
    </message>
    <message>
        <source>Far field from 2D²/λ = %1 m on, at %2.</source>
        <translation>Far field from 2D²/λ = %1 m on, at %2.</translation>
    </message>
    <message>
        <source>With the antenna&apos;s size, Check tells the far-field distance 2D²/λ.</source>
        <translation>With the antenna&apos;s size, Check tells the far-field distance 2D²/λ.</translation>
    </message>
    <message>
        <source>A run into this file was begun before. Go on with it, or begin anew?</source>
        <translation>A run into this file was begun before. Go on with it, or begin anew?</translation>
    </message>
    <message>
        <source>The file exists already. Replace it at the end?</source>
        <translation>The file exists already. Replace it at the end?</translation>
    </message>
    <message>
        <source>&amp;Go On</source>
        <translation>&amp;Go On</translation>
    </message>
    <message>
        <source>&amp;Begin Anew</source>
        <translation>&amp;Begin Anew</translation>
    </message>
    <message>
        <source>&amp;Replace</source>
        <translation>&amp;Replace</translation>
    </message>
    <message>
        <source>This run is complete; open its curve instead.</source>
        <translation>This run is complete; open its curve instead.</translation>
    </message>
    <message>
        <source>Curve File</source>
        <translation>Curve File</translation>
    </message>
    <message>
        <source>Curve files (*.csv)</source>
        <translation>Curve files (*.csv)</translation>
    </message>
    <message>
        <source>Res&amp;ume</source>
        <translation>Res&amp;ume</translation>
    </message>
    <message>
        <source>Meter b&amp;y:</source>
        <translation>Meter b&amp;y:</translation>
    </message>
    <message>
        <source>&amp;Rotator:</source>
        <translation>&amp;Rotator:</translation>
    </message>
    <message>
        <source>Toleran&amp;ce:</source>
        <translation>Toleran&amp;ce:</translation>
    </message>
    <message>
        <source>Settlin&amp;g:</source>
        <translation>Settlin&amp;g:</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>&amp;Name:</translation>
    </message>
    <message>
        <source>Bro&amp;wse...</source>
        <translation>Bro&amp;wse...</translation>
    </message>
    <message>
        <source>&amp;Antenna size:</source>
        <translation>&amp;Antenna size:</translation>
    </message>
</context>
<context>
    <name>MeasureMenu</name>
    <message>
        <source>Measure &amp;Pattern...</source>
        <translation>Measure &amp;Pattern...</translation>
    </message>
    <message>
        <source>Measures a pattern with the power meter and a turntable</source>
        <translation>Measures a pattern with the power meter and a turntable</translation>
    </message>
    <message>
        <source>pattern</source>
        <translation>pattern</translation>
    </message>
    <message>
        <source>This is no run file that can be resumed: %1</source>
        <translation>This is no run file that can be resumed: %1</translation>
    </message>
    <message>
        <source>A pattern is being measured in this window already.</source>
        <translation>A pattern is being measured in this window already.</translation>
    </message>
</context>
<context>
    <name>MeasureStrip</name>
    <message>
        <source>Pa&amp;use</source>
        <translation>Pa&amp;use</translation>
    </message>
    <message>
        <source>Sto&amp;p</source>
        <translation>Sto&amp;p</translation>
    </message>
    <message>
        <source>Angle</source>
        <translation>Angle</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>Level</translation>
    </message>
    <message>
        <source>Spread</source>
        <translation>Spread</translation>
    </message>
    <message>
        <source>Remaining time</source>
        <translation>Remaining time</translation>
    </message>
    <message>
        <source>State of the measurement</source>
        <translation>State of the measurement</translation>
    </message>
    <message>
        <source>Points</source>
        <translation>Points</translation>
    </message>
    <message>
        <source>%v of %m points</source>
        <translation>%v of %m points</translation>
    </message>
    <message>
        <source>Angle %1°</source>
        <translation>Angle %1°</translation>
    </message>
    <message>
        <source>The table reads %1°</source>
        <translation>The table reads %1°</translation>
    </message>
    <message>
        <source>Level %1</source>
        <translation>Level %1</translation>
    </message>
    <message>
        <source>Spread %1</source>
        <translation>Spread %1</translation>
    </message>
    <message>
        <source>Remaining %1</source>
        <translation>Remaining %1</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>Paused</translation>
    </message>
    <message>
        <source>The table turns back</source>
        <translation>The table turns back</translation>
    </message>
    <message>
        <source>&amp;Resume</source>
        <translation>&amp;Resume</translation>
    </message>
</context>
<context>
    <name>Measurement</name>
    <message>
        <source>Measured %1 with %2, rotator %3</source>
        <translation>Measured %1 with %2, rotator %3</translation>
    </message>
    <message>
        <source>Marked: the level drifted by %1 dB</source>
        <translation>Marked: the level drifted by %1 dB</translation>
    </message>
    <message>
        <source>Drift %1 dB</source>
        <translation>Drift %1 dB</translation>
    </message>
    <message>
        <source>No reading at %1</source>
        <translation>No reading at %1</translation>
    </message>
    <message>
        <source>The table did not stay at %1</source>
        <translation>The table did not stay at %1</translation>
    </message>
    <message>
        <source>Unsteady readings at %1</source>
        <translation>Unsteady readings at %1</translation>
    </message>
    <message>
        <source>Near the floor at %1</source>
        <translation>Near the floor at %1</translation>
    </message>
    <message>
        <source>The curve could not be written: %1
%2</source>
        <translation>The curve could not be written: %1
%2</translation>
    </message>
    <message>
        <source>The measurement has ended early. %1</source>
        <translation>The measurement has ended early. %1</translation>
    </message>
    <message>
        <source>The level drifted by %1 dB while the pattern was measured.</source>
        <translation>The level drifted by %1 dB while the pattern was measured.</translation>
    </message>
    <message>
        <source>Measured: %1</source>
        <translation>Measured: %1</translation>
    </message>
    <message>
        <source>Stopped; measured so far: %1</source>
        <translation>Stopped; measured so far: %1</translation>
    </message>
</context>
<context>
    <name>MessageDialog</name>
    <message>
        <source>Dialog</source>
        <translation>Dialog</translation>
    </message>
    <message>
        <source>Main Information</source>
        <translation>Main Information</translation>
    </message>
    <message>
        <source>Other Information</source>
        <translation>Other Information</translation>
    </message>
    <message>
        <source>The present value</source>
        <translation>The present value</translation>
    </message>
    <message>
        <source>Present value</source>
        <translation>Present value</translation>
    </message>
    <message>
        <source>to</source>
        <translation>to</translation>
    </message>
    <message>
        <source>The new value</source>
        <translation>The new value</translation>
    </message>
    <message>
        <source>New value</source>
        <translation>New value</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>Message</translation>
    </message>
</context>
<context>
    <name>MessageSimpleDialog</name>
    <message>
        <source>Message</source>
        <translation>Message</translation>
    </message>
    <message>
        <source>photo</source>
        <translation>photo</translation>
    </message>
    <message>
        <source>Successful</source>
        <translation>Successful</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
</context>
<context>
    <name>Mirror</name>
    <message>
        <source>&amp;Mirror Curve</source>
        <translation>&amp;Mirror Curve</translation>
    </message>
    <message>
        <source>Turns the sense of the selected curve&apos;s angles: left becomes right</source>
        <translation>Turns the sense of the selected curve&apos;s angles: left becomes right</translation>
    </message>
    <message>
        <source>Mirror Curve</source>
        <translation>Mirror Curve</translation>
    </message>
    <message>
        <source>%1, mirrored</source>
        <translation>%1, mirrored</translation>
    </message>
    <message>
        <source>&quot;%1&quot;, its angles&apos; sign turned</source>
        <translation>&quot;%1&quot;, its angles&apos; sign turned</translation>
    </message>
</context>
<context>
    <name>MsiFormat</name>
    <message>
        <source>There is no GAIN: 0 dBi is taken.</source>
        <translation>There is no GAIN: 0 dBi is taken.</translation>
    </message>
    <message>
        <source>There is neither a HORIZONTAL nor a VERTICAL cut.</source>
        <translation>There is neither a HORIZONTAL nor a VERTICAL cut.</translation>
    </message>
    <message>
        <source>A row of numbers before HORIZONTAL and VERTICAL.</source>
        <translation>A row of numbers before HORIZONTAL and VERTICAL.</translation>
    </message>
    <message>
        <source>Not an angle and a loss: &quot;%1&quot;.</source>
        <translation>Not an angle and a loss: &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>The file ends within a row: it has been cut off.</source>
        <translation>The file ends within a row: it has been cut off.</translation>
    </message>
    <message>
        <source>%1 announces %2 rows, but more follow.</source>
        <translation>%1 announces %2 rows, but more follow.</translation>
    </message>
    <message>
        <source>No number of rows: &quot;%1&quot;.</source>
        <translation>No number of rows: &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>There is a second cut %1.</source>
        <translation>There is a second cut %1.</translation>
    </message>
    <message>
        <source>%1 announces %2 rows, but %3 follow.</source>
        <translation>%1 announces %2 rows, but %3 follow.</translation>
    </message>
    <message>
        <source>Unknown key: %1.</source>
        <translation>Unknown key: %1.</translation>
    </message>
    <message>
        <source>GAIN is no number: &quot;%1&quot;.</source>
        <translation>GAIN is no number: &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>FREQUENCY is no frequency and was left out: &quot;%1&quot;.</source>
        <translation>FREQUENCY is no frequency and was left out: &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>There is no NAME: the file&apos;s name is taken.</source>
        <translation>There is no NAME: the file&apos;s name is taken.</translation>
    </message>
    <message>
        <source>There is no HORIZONTAL cut.</source>
        <translation>There is no HORIZONTAL cut.</translation>
    </message>
    <message>
        <source>There is no VERTICAL cut.</source>
        <translation>There is no VERTICAL cut.</translation>
    </message>
    <message>
        <source>%1: the minus sign of %2 losses is ignored.</source>
        <translation>%1: the minus sign of %2 losses is ignored.</translation>
    </message>
    <message>
        <source>%1 does not go round the circle: there is nothing from %2° to %3°.</source>
        <translation>%1 does not go round the circle: there is nothing from %2° to %3°.</translation>
    </message>
    <message>
        <source>The horizontal cut</source>
        <translation>The horizontal cut</translation>
    </message>
    <message>
        <source>The vertical cut</source>
        <translation>The vertical cut</translation>
    </message>
</context>
<context>
    <name>MyParaInfoTable</name>
    <message>
        <source>Pattern parameters</source>
        <translation>Pattern parameters</translation>
    </message>
    <message>
        <source>Gain</source>
        <translation>Gain</translation>
    </message>
    <message>
        <source>3dB (L)</source>
        <translation>3dB (L)</translation>
    </message>
    <message>
        <source>3dB (R)</source>
        <translation>3dB (R)</translation>
    </message>
    <message>
        <source>3dB Width</source>
        <translation>3dB Width</translation>
    </message>
    <message>
        <source>First Null(L)</source>
        <translation>First Null(L)</translation>
    </message>
    <message>
        <source>First Null(R)</source>
        <translation>First Null(R)</translation>
    </message>
    <message>
        <source>First Side Lobe(L)</source>
        <translation>First Side Lobe(L)</translation>
    </message>
    <message>
        <source>First Side Lobe(R)</source>
        <translation>First Side Lobe(R)</translation>
    </message>
    <message>
        <source>Before After Ratio(R)</source>
        <translation>Before After Ratio(R)</translation>
    </message>
    <message>
        <source>Axial Ratio</source>
        <translation>Axial Ratio</translation>
    </message>
    <message>
        <source>CrossPolarRatio</source>
        <translation>CrossPolarRatio</translation>
    </message>
</context>
<context>
    <name>NecFormat</name>
    <message>
        <source>The listing holds no radiation pattern.</source>
        <translation>The listing holds no radiation pattern.</translation>
    </message>
    <message>
        <source>Fewer than five numbers in a row of the pattern.</source>
        <translation>Fewer than five numbers in a row of the pattern.</translation>
    </message>
    <message>
        <source>The file ends within a row: it has been cut off.</source>
        <translation>The file ends within a row: it has been cut off.</translation>
    </message>
    <message>
        <source>The pattern has %1 rows of %2: the listing has been cut off.</source>
        <translation>The pattern has %1 rows of %2: the listing has been cut off.</translation>
    </message>
    <message>
        <source>The listing ends with a row of the pattern: it may have been cut off.</source>
        <translation>The listing ends with a row of the pattern: it may have been cut off.</translation>
    </message>
    <message>
        <source>The numbers have a decimal comma instead of a point.</source>
        <translation>The numbers have a decimal comma instead of a point.</translation>
    </message>
</context>
<context>
    <name>Normalise</name>
    <message>
        <source>&amp;Normalise...</source>
        <translation>&amp;Normalise...</translation>
    </message>
    <message>
        <source>Raises or lowers the selected curve, to a peak or by an offset</source>
        <translation>Raises or lowers the selected curve, to a peak or by an offset</translation>
    </message>
    <message>
        <source>Normalise</source>
        <translation>Normalise</translation>
    </message>
    <message>
        <source>%1, normalised</source>
        <translation>%1, normalised</translation>
    </message>
    <message>
        <source>%2 dB added to &quot;%1&quot;</source>
        <translation>%2 dB added to &quot;%1&quot;</translation>
    </message>
</context>
<context>
    <name>NsmaFormat</name>
    <message>
        <source>The file holds no cut.</source>
        <translation>The file holds no cut.</translation>
    </message>
    <message>
        <source>NUPOIN is no number: &quot;%1&quot;.</source>
        <translation>NUPOIN is no number: &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>GUNITS are none that are known: &quot;%1&quot;.</source>
        <translation>GUNITS are none that are known: &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>Neither a key nor a row of a cut: &quot;%1&quot;.</source>
        <translation>Neither a key nor a row of a cut: &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>Not an angle and a level: &quot;%1&quot;.</source>
        <translation>Not an angle and a level: &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>The file ends within a row: it has been cut off.</source>
        <translation>The file ends within a row: it has been cut off.</translation>
    </message>
    <message>
        <source>There are no GUNITS: DBI/DBR is taken.</source>
        <translation>There are no GUNITS: DBI/DBR is taken.</translation>
    </message>
    <message>
        <source>%1 is no number: &quot;%2&quot;.</source>
        <translation>%1 is no number: &quot;%2&quot;.</translation>
    </message>
    <message>
        <source>There is no gain: 0 dBi is taken.</source>
        <translation>There is no gain: 0 dBi is taken.</translation>
    </message>
    <message>
        <source>ENDFIL is missing, though all rows are there.</source>
        <translation>ENDFIL is missing, though all rows are there.</translation>
    </message>
    <message>
        <source>The file ends before ENDFIL: it has been cut off.</source>
        <translation>The file ends before ENDFIL: it has been cut off.</translation>
    </message>
    <message>
        <source>NUPOIN announces %1 rows, but %2 follow.</source>
        <translation>NUPOIN announces %1 rows, but %2 follow.</translation>
    </message>
    <message>
        <source>%1 rows without any field were left out.</source>
        <translation>%1 rows without any field were left out.</translation>
    </message>
    <message>
        <source>The cut holds no row and was left out.</source>
        <translation>The cut holds no row and was left out.</translation>
    </message>
</context>
<context>
    <name>OpenActions</name>
    <message>
        <source>&amp;Clear List</source>
        <translation>&amp;Clear List</translation>
    </message>
    <message>
        <source>Opening was cancelled; the charts are as they were.</source>
        <translation>Opening was cancelled; the charts are as they were.</translation>
    </message>
    <message>
        <source>Curves opened: %1.</source>
        <translation>Curves opened: %1.</translation>
    </message>
    <message>
        <source>These files could not be opened:</source>
        <translation>These files could not be opened:</translation>
    </message>
    <message>
        <source>The files were opened. Please look at these points:</source>
        <translation>The files were opened. Please look at these points:</translation>
    </message>
    <message>
        <source>Open Curves</source>
        <translation>Open Curves</translation>
    </message>
    <message>
        <source>The sample patterns are not installed.</source>
        <translation>The sample patterns are not installed.</translation>
    </message>
    <message>
        <source>Curves and patterns (*.csv *.msi *.pln *.adf *.out *.txt);;All files (*)</source>
        <translation>Curves and patterns (*.csv *.msi *.pln *.adf *.out *.txt);;All files (*)</translation>
    </message>
    <message>
        <source>Others were opened. Please look at these points:</source>
        <translation>Others were opened. Please look at these points:</translation>
    </message>
</context>
<context>
    <name>OperationDialogs</name>
    <message>
        <source>Normalise</source>
        <translation>Normalise</translation>
    </message>
    <message>
        <source>&amp;Peak to</source>
        <translation>&amp;Peak to</translation>
    </message>
    <message>
        <source>&amp;Add</source>
        <translation>&amp;Add</translation>
    </message>
    <message>
        <source>Compare</source>
        <translation>Compare</translation>
    </message>
    <message>
        <source>&amp;Curve:</source>
        <translation>&amp;Curve:</translation>
    </message>
    <message>
        <source>&amp;minus:</source>
        <translation>&amp;minus:</translation>
    </message>
</context>
<context>
    <name>ParaInfoTable</name>
    <message>
        <source>Pattern parameters by frequency</source>
        <translation>Pattern parameters by frequency</translation>
    </message>
    <message>
        <source>Frequency(MHz)</source>
        <translation>Frequency(MHz)</translation>
    </message>
    <message>
        <source>Gain</source>
        <translation>Gain</translation>
    </message>
    <message>
        <source>3dB Width</source>
        <translation>3dB Width</translation>
    </message>
    <message>
        <source>First Side Lobe(L)</source>
        <translation>First Side Lobe(L)</translation>
    </message>
    <message>
        <source>First Side Lobe(R)</source>
        <translation>First Side Lobe(R)</translation>
    </message>
    <message>
        <source>Before After Ratio</source>
        <translation>Before After Ratio</translation>
    </message>
    <message>
        <source>Axial Ratio</source>
        <translation>Axial Ratio</translation>
    </message>
    <message>
        <source>CrossPolarRatio</source>
        <translation>CrossPolarRatio</translation>
    </message>
    <message>
        <source>Amplitude</source>
        <translation>Amplitude</translation>
    </message>
</context>
<context>
    <name>PatternFormats</name>
    <message>
        <source>Maker</source>
        <translation>Maker</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>Model</translation>
    </message>
    <message>
        <source>Polarisation</source>
        <translation>Polarisation</translation>
    </message>
    <message>
        <source>Comment</source>
        <translation>Comment</translation>
    </message>
    <message>
        <source>Line %1: %2</source>
        <translation>Line %1: %2</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>, vertical</source>
        <translation>, vertical</translation>
    </message>
    <message>
        <source>, horizontal</source>
        <translation>, horizontal</translation>
    </message>
    <message>
        <source>There is no curve to write.</source>
        <translation>There is no curve to write.</translation>
    </message>
    <message>
        <source>An MSI file needs a horizontal and a vertical curve.</source>
        <translation>An MSI file needs a horizontal and a vertical curve.</translation>
    </message>
</context>
<context>
    <name>PatternWindow</name>
    <message>
        <source>Antenna Pattern Workbench</source>
        <translation>Antenna Pattern Workbench</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;File</translation>
    </message>
    <message>
        <source>Open &amp;Recent</source>
        <translation>Open &amp;Recent</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Edit</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;View</translation>
    </message>
    <message>
        <source>&amp;Language</source>
        <translation>&amp;Language</translation>
    </message>
    <message>
        <source>&amp;Loss</source>
        <translation>&amp;Loss</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Help</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>Tools</translation>
    </message>
    <message>
        <source>&amp;New Window</source>
        <translation>&amp;New Window</translation>
    </message>
    <message>
        <source>&amp;Open...</source>
        <translation>&amp;Open...</translation>
    </message>
    <message>
        <source>Opens one or more curve files</source>
        <translation>Opens one or more curve files</translation>
    </message>
    <message>
        <source>Open &amp;Samples</source>
        <translation>Open &amp;Samples</translation>
    </message>
    <message>
        <source>Opens the sample patterns that came with the program</source>
        <translation>Opens the sample patterns that came with the program</translation>
    </message>
    <message>
        <source>Save &amp;Curve As...</source>
        <translation>Save &amp;Curve As...</translation>
    </message>
    <message>
        <source>Writes the selected curve to a curve file</source>
        <translation>Writes the selected curve to a curve file</translation>
    </message>
    <message>
        <source>Save &amp;Picture As...</source>
        <translation>Save &amp;Picture As...</translation>
    </message>
    <message>
        <source>Writes the charts to a picture file</source>
        <translation>Writes the charts to a picture file</translation>
    </message>
    <message>
        <source>Save &amp;Report As...</source>
        <translation>Save &amp;Report As...</translation>
    </message>
    <message>
        <source>Writes picture, description and parameters to an HTML or PDF file</source>
        <translation>Writes picture, description and parameters to an HTML or PDF file</translation>
    </message>
    <message>
        <source>&amp;Print Report...</source>
        <translation>&amp;Print Report...</translation>
    </message>
    <message>
        <source>Close &amp;Window</source>
        <translation>Close &amp;Window</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Quit</translation>
    </message>
    <message>
        <source>&amp;Copy Curve</source>
        <translation>&amp;Copy Curve</translation>
    </message>
    <message>
        <source>Puts the selected curve on the clipboard</source>
        <translation>Puts the selected curve on the clipboard</translation>
    </message>
    <message>
        <source>&amp;Paste Curve</source>
        <translation>&amp;Paste Curve</translation>
    </message>
    <message>
        <source>Makes a curve of the text on the clipboard</source>
        <translation>Makes a curve of the text on the clipboard</translation>
    </message>
    <message>
        <source>Copy Parameter &amp;Table</source>
        <translation>Copy Parameter &amp;Table</translation>
    </message>
    <message>
        <source>Puts the parameters of all shown curves on the clipboard as text</source>
        <translation>Puts the parameters of all shown curves on the clipboard as text</translation>
    </message>
    <message>
        <source>&amp;Remove Curve</source>
        <translation>&amp;Remove Curve</translation>
    </message>
    <message>
        <source>Takes the selected curve off both charts</source>
        <translation>Takes the selected curve off both charts</translation>
    </message>
    <message>
        <source>&amp;Fit to Data</source>
        <translation>&amp;Fit to Data</translation>
    </message>
    <message>
        <source>Chooses the ranges of both charts from the curves</source>
        <translation>Chooses the ranges of both charts from the curves</translation>
    </message>
    <message>
        <source>&amp;Symmetry</source>
        <translation>&amp;Symmetry</translation>
    </message>
    <message>
        <source>&amp;Manage Curves...</source>
        <translation>&amp;Manage Curves...</translation>
    </message>
    <message>
        <source>Names, colours, line widths and visibility of all curves</source>
        <translation>Names, colours, line widths and visibility of all curves</translation>
    </message>
    <message>
        <source>&amp;Load Loss Table...</source>
        <translation>&amp;Load Loss Table...</translation>
    </message>
    <message>
        <source>Correct &amp;Up-link</source>
        <translation>Correct &amp;Up-link</translation>
    </message>
    <message>
        <source>Adds the up-link loss at the selected curve&apos;s frequency; the result is a new curve</source>
        <translation>Adds the up-link loss at the selected curve&apos;s frequency; the result is a new curve</translation>
    </message>
    <message>
        <source>Correct &amp;Down-link</source>
        <translation>Correct &amp;Down-link</translation>
    </message>
    <message>
        <source>Adds the down-link loss at the selected curve&apos;s frequency; the result is a new curve</source>
        <translation>Adds the down-link loss at the selected curve&apos;s frequency; the result is a new curve</translation>
    </message>
    <message>
        <source>&amp;About</source>
        <translation>&amp;About</translation>
    </message>
    <message>
        <source>About &amp;Qt</source>
        <translation>About &amp;Qt</translation>
    </message>
    <message>
        <source>The file could not be written, what was there is unchanged: %1
%2</source>
        <translation>The file could not be written, what was there is unchanged: %1
%2</translation>
    </message>
    <message>
        <source>Written: %1</source>
        <translation>Written: %1</translation>
    </message>
    <message>
        <source>Save Report</source>
        <translation>Save Report</translation>
    </message>
    <message>
        <source>About</source>
        <translation>About</translation>
    </message>
    <message>
        <source>&lt;h3&gt;Antenna Pattern Workbench&lt;/h3&gt;&lt;p&gt;Version %1, with Qt %2&lt;/p&gt;&lt;p&gt;Shows antenna patterns in a polar and a cartesian chart and tells gain, beam width, nulls and side lobes.&lt;/p&gt;</source>
        <translation>&lt;h3&gt;Antenna Pattern Workbench&lt;/h3&gt;&lt;p&gt;Version %1, with Qt %2&lt;/p&gt;&lt;p&gt;Shows antenna patterns in a polar and a cartesian chart and tells gain, beam width, nulls and side lobes.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Open</translation>
    </message>
    <message>
        <source>Print Report</source>
        <translation>Print Report</translation>
    </message>
    <message>
        <source>Copy Parameter Table</source>
        <translation>Copy Parameter Table</translation>
    </message>
    <message>
        <source>Parameter Li&amp;nes</source>
        <translation>Parameter Li&amp;nes</translation>
    </message>
    <message>
        <source>Parameter Lines</source>
        <translation>Parameter Lines</translation>
    </message>
    <message>
        <source>Shows peak, 3 dB points and first side lobes of every curve as lines</source>
        <translation>Shows peak, 3 dB points and first side lobes of every curve as lines</translation>
    </message>
    <message>
        <source>Manage Curves</source>
        <translation>Manage Curves</translation>
    </message>
    <message>
        <source>Draws every curve mirrored until the ranges change; the values stay</source>
        <translation>Draws every curve mirrored until the ranges change; the values stay</translation>
    </message>
    <message>
        <source>&amp;Undo Symmetry</source>
        <translation>&amp;Undo Symmetry</translation>
    </message>
    <message>
        <source>&amp;Measure</source>
        <translation>&amp;Measure</translation>
    </message>
    <message>
        <source>Save &amp;All Curves...</source>
        <translation>Save &amp;All Curves...</translation>
    </message>
    <message>
        <source>Writes every curve to a file of its own in one folder</source>
        <translation>Writes every curve to a file of its own in one folder</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Undo</translation>
    </message>
    <message>
        <source>Re&amp;do</source>
        <translation>Re&amp;do</translation>
    </message>
    <message>
        <source>&amp;Export Pattern...</source>
        <translation>&amp;Export Pattern...</translation>
    </message>
    <message>
        <source>Writes curves as a file of MSI, NSMA or NEC2</source>
        <translation>Writes curves as a file of MSI, NSMA or NEC2</translation>
    </message>
    <message>
        <source>P&amp;olar Chart</source>
        <translation>P&amp;olar Chart</translation>
    </message>
    <message>
        <source>0° &amp;Up, Clockwise</source>
        <translation>0° &amp;Up, Clockwise</translation>
    </message>
    <message>
        <source>0° Up, &amp;Counter-clockwise</source>
        <translation>0° Up, &amp;Counter-clockwise</translation>
    </message>
    <message>
        <source>0° &amp;Right, Counter-clockwise</source>
        <translation>0° &amp;Right, Counter-clockwise</translation>
    </message>
    <message>
        <source>0° &amp;Down, Clockwise</source>
        <translation>0° &amp;Down, Clockwise</translation>
    </message>
    <message>
        <source>Labels &amp;-180 ... 180</source>
        <translation>Labels &amp;-180 ... 180</translation>
    </message>
    <message>
        <source>Labels &amp;0 ... 360</source>
        <translation>Labels &amp;0 ... 360</translation>
    </message>
    <message>
        <source>&amp;Manual</source>
        <translation>&amp;Manual</translation>
    </message>
    <message>
        <source>%1 - %2</source>
        <translation>%1 - %2</translation>
    </message>
    <message>
        <source>&amp;Beam Widths...</source>
        <translation>&amp;Beam Widths...</translation>
    </message>
    <message>
        <source>Tells the beam widths at levels of your choice, with lines in both charts</source>
        <translation>Tells the beam widths at levels of your choice, with lines in both charts</translation>
    </message>
    <message>
        <source>Mar&amp;kers</source>
        <translation>Mar&amp;kers</translation>
    </message>
    <message>
        <source>To &amp;Peak</source>
        <translation>To &amp;Peak</translation>
    </message>
    <message>
        <source>Sends the selected marker of the selected curve to its peak, or puts one there</source>
        <translation>Sends the selected marker of the selected curve to its peak, or puts one there</translation>
    </message>
    <message>
        <source>To &amp;Next Peak</source>
        <translation>To &amp;Next Peak</translation>
    </message>
    <message>
        <source>Sends the selected marker to the next lower peak of its curve</source>
        <translation>Sends the selected marker to the next lower peak of its curve</translation>
    </message>
    <message>
        <source>To -&amp;3 dB</source>
        <translation>To -&amp;3 dB</translation>
    </message>
    <message>
        <source>Sends the selected marker to a half-power point of its curve, and again to the other</source>
        <translation>Sends the selected marker to a half-power point of its curve, and again to the other</translation>
    </message>
    <message>
        <source>&amp;Deltas</source>
        <translation>&amp;Deltas</translation>
    </message>
    <message>
        <source>Tells markers as what they differ from the first of their curve</source>
        <translation>Tells markers as what they differ from the first of their curve</translation>
    </message>
</context>
<context>
    <name>PlanText</name>
    <message>
        <source>An angle is no number.</source>
        <translation>An angle is no number.</translation>
    </message>
    <message>
        <source>The step must be above 0 degrees.</source>
        <translation>The step must be above 0 degrees.</translation>
    </message>
    <message>
        <source>The sense is 1 or -1.</source>
        <translation>The sense is 1 or -1.</translation>
    </message>
    <message>
        <source>The sweep spans more than one turn.</source>
        <translation>The sweep spans more than one turn.</translation>
    </message>
    <message>
        <source>The sweep has too many points.</source>
        <translation>The sweep has too many points.</translation>
    </message>
    <message>
        <source>The table does not reach all angles; it turns from %1 to %2 degrees.</source>
        <translation>The table does not reach all angles; it turns from %1 to %2 degrees.</translation>
    </message>
    <message>
        <source>The table does not reach all angles.</source>
        <translation>The table does not reach all angles.</translation>
    </message>
</context>
<context>
    <name>PointTableModel</name>
    <message>
        <source>Angle [°]</source>
        <translation>Angle [°]</translation>
    </message>
    <message>
        <source>Level [dB]</source>
        <translation>Level [dB]</translation>
    </message>
</context>
<context>
    <name>PowerDisplay</name>
    <message>
        <source>Not connected</source>
        <translation>Not connected</translation>
    </message>
    <message>
        <source>No reading</source>
        <translation>No reading</translation>
    </message>
    <message>
        <source>No reading: the instrument says &quot;%1&quot;</source>
        <translation>No reading: the instrument says &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Live</source>
        <translation>Live</translation>
    </message>
    <message>
        <source>Stale: %1 s old</source>
        <translation>Stale: %1 s old</translation>
    </message>
    <message>
        <source>Power: %1 %2, %3</source>
        <translation>Power: %1 %2, %3</translation>
    </message>
    <message>
        <source>In the instrument&apos;s unit: %1</source>
        <translation>In the instrument&apos;s unit: %1</translation>
    </message>
</context>
<context>
    <name>Reconnector</name>
    <message>
        <source>No link since %1.</source>
        <translation>No link since %1.</translation>
    </message>
    <message>
        <source>Trying again …</source>
        <translation>Trying again …</translation>
    </message>
    <message>
        <source>Waiting for %1 to come back.</source>
        <translation>Waiting for %1 to come back.</translation>
    </message>
    <message>
        <source>Next try in %1 s.</source>
        <translation>Next try in %1 s.</translation>
    </message>
</context>
<context>
    <name>RecordChart</name>
    <message>
        <source>Record</source>
        <translation>Record</translation>
    </message>
    <message>
        <source>Level against the clock time, with cursors A and B</source>
        <translation>Level against the clock time, with cursors A and B</translation>
    </message>
    <message>
        <source>Power [dB]</source>
        <translation>Power [dB]</translation>
    </message>
    <message>
        <source>Power [dBm]</source>
        <translation>Power [dBm]</translation>
    </message>
    <message>
        <source>Cursor A here</source>
        <translation>Cursor A here</translation>
    </message>
    <message>
        <source>Cursor B here</source>
        <translation>Cursor B here</translation>
    </message>
    <message>
        <source>Show all</source>
        <translation>Show all</translation>
    </message>
</context>
<context>
    <name>RecordReader</name>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>%1 cannot be read: %2</translation>
    </message>
    <message>
        <source>%1 holds no record.</source>
        <translation>%1 holds no record.</translation>
    </message>
    <message>
        <source>%1 is a record of another kind than the other files.</source>
        <translation>%1 is a record of another kind than the other files.</translation>
    </message>
</context>
<context>
    <name>RecordTables</name>
    <message>
        <source>Rows at the cursors</source>
        <translation>Rows at the cursors</translation>
    </message>
    <message>
        <source>Between the cursors</source>
        <translation>Between the cursors</translation>
    </message>
    <message>
        <source>From A to B</source>
        <translation>From A to B</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Time</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>Level</translation>
    </message>
    <message>
        <source>Difference</source>
        <translation>Difference</translation>
    </message>
    <message>
        <source>Mean</source>
        <translation>Mean</translation>
    </message>
    <message>
        <source>none: dB and dBm are mixed</source>
        <translation>none: dB and dBm are mixed</translation>
    </message>
    <message>
        <source>Minimum</source>
        <translation>Minimum</translation>
    </message>
    <message>
        <source>Maximum</source>
        <translation>Maximum</translation>
    </message>
    <message>
        <source>Peak to peak</source>
        <translation>Peak to peak</translation>
    </message>
    <message>
        <source>Sigma</source>
        <translation>Sigma</translation>
    </message>
    <message>
        <source>Rows</source>
        <translation>Rows</translation>
    </message>
    <message>
        <source>Gaps</source>
        <translation>Gaps</translation>
    </message>
</context>
<context>
    <name>RecordView</name>
    <message>
        <source>&amp;File</source>
        <translation>&amp;File</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;View</translation>
    </message>
    <message>
        <source>&amp;Open Record…</source>
        <translation>&amp;Open Record…</translation>
    </message>
    <message>
        <source>&amp;Add Files…</source>
        <translation>&amp;Add Files…</translation>
    </message>
    <message>
        <source>Save &amp;Picture…</source>
        <translation>Save &amp;Picture…</translation>
    </message>
    <message>
        <source>&amp;Save Rows from A to B…</source>
        <translation>&amp;Save Rows from A to B…</translation>
    </message>
    <message>
        <source>&amp;Copy Figures</source>
        <translation>&amp;Copy Figures</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Close</translation>
    </message>
    <message>
        <source>Show &amp;All</source>
        <translation>Show &amp;All</translation>
    </message>
    <message>
        <source>Zoom &amp;In</source>
        <translation>Zoom &amp;In</translation>
    </message>
    <message>
        <source>Zoom &amp;Out</source>
        <translation>Zoom &amp;Out</translation>
    </message>
    <message>
        <source>&amp;Fit Level</source>
        <translation>&amp;Fit Level</translation>
    </message>
    <message>
        <source>&amp;Go on with Files That Grow</source>
        <translation>&amp;Go on with Files That Grow</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>Reading the record</source>
        <translation>Reading the record</translation>
    </message>
    <message>
        <source>Record</source>
        <translation>Record</translation>
    </message>
    <message>
        <source>Record - %1</source>
        <translation>Record - %1</translation>
    </message>
    <message>
        <source>Record - %1 and %2 more</source>
        <translation>Record - %1 and %2 more</translation>
    </message>
    <message>
        <source>Open Record</source>
        <translation>Open Record</translation>
    </message>
    <message>
        <source>Records (*.csv *.jsonl);;All files (*)</source>
        <translation>Records (*.csv *.jsonl);;All files (*)</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Note</translation>
    </message>
    <message>
        <source>Save Picture</source>
        <translation>Save Picture</translation>
    </message>
    <message>
        <source>Pictures (*.png)</source>
        <translation>Pictures (*.png)</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2</source>
        <translation>%1 cannot be written: %2</translation>
    </message>
    <message>
        <source>Save Rows</source>
        <translation>Save Rows</translation>
    </message>
    <message>
        <source>%1 is a file of this record: choose another name.</source>
        <translation>%1 is a file of this record: choose another name.</translation>
    </message>
    <message>
        <source>Rows with a level: %1, gaps: %2</source>
        <translation>Rows with a level: %1, gaps: %2</translation>
    </message>
    <message>
        <source>, lines not understood: %1</source>
        <translation>, lines not understood: %1</translation>
    </message>
</context>
<context>
    <name>Report</name>
    <message>
        <source>%1° to %2°</source>
        <translation>%1° to %2°</translation>
    </message>
    <message>
        <source>Curve</source>
        <translation>Curve</translation>
    </message>
    <message>
        <source>Frequency (MHz)</source>
        <translation>Frequency (MHz)</translation>
    </message>
    <message>
        <source>Material</source>
        <translation>Material</translation>
    </message>
    <message>
        <source>Points</source>
        <translation>Points</translation>
    </message>
    <message>
        <source>Angles</source>
        <translation>Angles</translation>
    </message>
    <message>
        <source>Loss correction</source>
        <translation>Loss correction</translation>
    </message>
    <message>
        <source>File</source>
        <translation>File</translation>
    </message>
    <message>
        <source>Curves</source>
        <translation>Curves</translation>
    </message>
    <message>
        <source>Pattern parameters</source>
        <translation>Pattern parameters</translation>
    </message>
    <message>
        <source>Notes</source>
        <translation>Notes</translation>
    </message>
    <message>
        <source>Mask</source>
        <translation>Mask</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>Result</translation>
    </message>
    <message>
        <source>Worst margin (dB)</source>
        <translation>Worst margin (dB)</translation>
    </message>
    <message>
        <source>At (°)</source>
        <translation>At (°)</translation>
    </message>
    <message>
        <source>pass</source>
        <translation>pass</translation>
    </message>
    <message>
        <source>fail</source>
        <translation>fail</translation>
    </message>
    <message>
        <source>Mask limits</source>
        <translation>Mask limits</translation>
    </message>
    <message>
        <source>Supplementary (textbook definitions, nulls from %1 dB)</source>
        <translation>Supplementary (textbook definitions, nulls from %1 dB)</translation>
    </message>
</context>
<context>
    <name>Rotate</name>
    <message>
        <source>R&amp;otate...</source>
        <translation>R&amp;otate...</translation>
    </message>
    <message>
        <source>Adds an angle to those of the selected curve</source>
        <translation>Adds an angle to those of the selected curve</translation>
    </message>
    <message>
        <source>Rotate</source>
        <translation>Rotate</translation>
    </message>
    <message>
        <source>&amp;Angle:</source>
        <translation>&amp;Angle:</translation>
    </message>
    <message>
        <source>%1, rotated by %2°</source>
        <translation>%1, rotated by %2°</translation>
    </message>
    <message>
        <source>&quot;%1&quot;, rotated by %2°</source>
        <translation>&quot;%1&quot;, rotated by %2°</translation>
    </message>
</context>
<context>
    <name>RotatorClient</name>
    <message>
        <source>The rotator&apos;s reply is none.</source>
        <translation>The rotator&apos;s reply is none.</translation>
    </message>
    <message>
        <source>The rotator does not tell its position (error %1).</source>
        <translation>The rotator does not tell its position (error %1).</translation>
    </message>
    <message>
        <source>The rotator cannot be reached.</source>
        <translation>The rotator cannot be reached.</translation>
    </message>
    <message>
        <source>The rotator does not answer.</source>
        <translation>The rotator does not answer.</translation>
    </message>
</context>
<context>
    <name>SaveActions</name>
    <message>
        <source>Curve files</source>
        <translation>Curve files</translation>
    </message>
    <message>
        <source>curve</source>
        <translation>curve</translation>
    </message>
    <message>
        <source>Save Curve</source>
        <translation>Save Curve</translation>
    </message>
    <message>
        <source>Save Picture</source>
        <translation>Save Picture</translation>
    </message>
    <message>
        <source>patterns</source>
        <translation>patterns</translation>
    </message>
    <message>
        <source>PNG picture</source>
        <translation>PNG picture</translation>
    </message>
    <message>
        <source>JPEG picture</source>
        <translation>JPEG picture</translation>
    </message>
    <message>
        <source>Save Report</source>
        <translation>Save Report</translation>
    </message>
    <message>
        <source>report</source>
        <translation>report</translation>
    </message>
    <message>
        <source>HTML report</source>
        <translation>HTML report</translation>
    </message>
    <message>
        <source>PDF report</source>
        <translation>PDF report</translation>
    </message>
    <message>
        <source>Folder for the Curves</source>
        <translation>Folder for the Curves</translation>
    </message>
    <message>
        <source>Curves written: %1.</source>
        <translation>Curves written: %1.</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Close</translation>
    </message>
    <message>
        <source>These curves are in no file:
%1</source>
        <translation>These curves are in no file:
%1</translation>
    </message>
    <message>
        <source>MSI pattern</source>
        <translation>MSI pattern</translation>
    </message>
    <message>
        <source>NSMA pattern</source>
        <translation>NSMA pattern</translation>
    </message>
    <message>
        <source>NEC2 listing</source>
        <translation>NEC2 listing</translation>
    </message>
    <message>
        <source>Export Pattern</source>
        <translation>Export Pattern</translation>
    </message>
    <message>
        <source>pattern</source>
        <translation>pattern</translation>
    </message>
    <message>
        <source>The pattern cannot be written:</source>
        <translation>The pattern cannot be written:</translation>
    </message>
    <message>
        <source>SVG drawing</source>
        <translation>SVG drawing</translation>
    </message>
    <message>
        <source>PDF drawing</source>
        <translation>PDF drawing</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no format for pictures: use png, jpg, svg or pdf.</source>
        <translation>&quot;%1&quot; is no format for pictures: use png, jpg, svg or pdf.</translation>
    </message>
</context>
<context>
    <name>SaveQuestion</name>
    <message>
        <source>&quot;%1&quot; is no format that can be written here. Known formats: %2.</source>
        <translation>&quot;%1&quot; is no format that can be written here. Known formats: %2.</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Replace</translation>
    </message>
    <message>
        <source>This exists already:
%1
Replace it?</source>
        <translation>This exists already:
%1
Replace it?</translation>
    </message>
    <message>
        <source>&amp;Replace</source>
        <translation>&amp;Replace</translation>
    </message>
</context>
<context>
    <name>SerialLogic</name>
    <message>
        <source>Failed to connect %1</source>
        <translation>Failed to connect %1</translation>
    </message>
    <message>
        <source>Please open the serial port first.</source>
        <translation>Please open the serial port first.</translation>
    </message>
    <message>
        <source>Failed to send cmd.</source>
        <translation>Failed to send cmd.</translation>
    </message>
    <message>
        <source>Please connect first.</source>
        <translation>Please connect first.</translation>
    </message>
</context>
<context>
    <name>SettingBoxes</name>
    <message>
        <source>Frequency</source>
        <translation>Frequency</translation>
    </message>
    <message>
        <source>Offset</source>
        <translation>Offset</translation>
    </message>
    <message>
        <source>Average count</source>
        <translation>Average count</translation>
    </message>
    <message>
        <source>Relative state</source>
        <translation>Relative state</translation>
    </message>
    <message>
        <source>Power unit</source>
        <translation>Power unit</translation>
    </message>
    <message>
        <source>%1: asked for %2, the instrument holds %3.</source>
        <translation>%1: asked for %2, the instrument holds %3.</translation>
    </message>
    <message>
        <source>Not confirmed: the instrument holds %1.</source>
        <translation>Not confirmed: the instrument holds %1.</translation>
    </message>
    <message>
        <source>Not sent: the instrument holds %1. Esc puts that back.</source>
        <translation>Not sent: the instrument holds %1. Esc puts that back.</translation>
    </message>
    <message>
        <source>%1 was confirmed, but could not be read back.</source>
        <translation>%1 was confirmed, but could not be read back.</translation>
    </message>
    <message>
        <source>Not known: the instrument did not tell what it holds.</source>
        <translation>Not known: the instrument did not tell what it holds.</translation>
    </message>
</context>
<context>
    <name>Smooth</name>
    <message>
        <source>&amp;Smooth...</source>
        <translation>&amp;Smooth...</translation>
    </message>
    <message>
        <source>Averages the power of the selected curve over a width in degrees</source>
        <translation>Averages the power of the selected curve over a width in degrees</translation>
    </message>
    <message>
        <source>Smooth</source>
        <translation>Smooth</translation>
    </message>
    <message>
        <source>&amp;Width:</source>
        <translation>&amp;Width:</translation>
    </message>
    <message>
        <source>%1, smoothed over %2°</source>
        <translation>%1, smoothed over %2°</translation>
    </message>
    <message>
        <source>&quot;%1&quot;, moving average of the power over %2°</source>
        <translation>&quot;%1&quot;, moving average of the power over %2°</translation>
    </message>
</context>
<context>
    <name>StatisticsPanel</name>
    <message>
        <source>&amp;Over</source>
        <translation>&amp;Over</translation>
    </message>
    <message>
        <source>since reset</source>
        <translation>since reset</translation>
    </message>
    <message>
        <source>the shown range of the chart</source>
        <translation>the shown range of the chart</translation>
    </message>
    <message>
        <source>Statistics over</source>
        <translation>Statistics over</translation>
    </message>
    <message>
        <source>Statistics</source>
        <translation>Statistics</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>Now</translation>
    </message>
    <message>
        <source>Mean</source>
        <translation>Mean</translation>
    </message>
    <message>
        <source>Minimum</source>
        <translation>Minimum</translation>
    </message>
    <message>
        <source>Maximum</source>
        <translation>Maximum</translation>
    </message>
    <message>
        <source>Peak to peak</source>
        <translation>Peak to peak</translation>
    </message>
    <message>
        <source>Sigma</source>
        <translation>Sigma</translation>
    </message>
    <message>
        <source>Readings</source>
        <translation>Readings</translation>
    </message>
    <message>
        <source>Missed</source>
        <translation>Missed</translation>
    </message>
    <message>
        <source>Since</source>
        <translation>Since</translation>
    </message>
    <message>
        <source>&amp;Reset</source>
        <translation>&amp;Reset</translation>
    </message>
    <message>
        <source>Cop&amp;y</source>
        <translation>Cop&amp;y</translation>
    </message>
</context>
<context>
    <name>StatusLabels</name>
    <message>
        <source>&lt;font color = red&gt;Close&lt;/font&gt;</source>
        <translation>&lt;font color = red&gt;Close&lt;/font&gt;</translation>
    </message>
    <message>
        <source>&lt;font color = blue&gt;Open&lt;/font&gt;</source>
        <translation>&lt;font color = blue&gt;Open&lt;/font&gt;</translation>
    </message>
    <message>
        <source>&lt;font color = blue&gt;Connect&lt;/font&gt;</source>
        <translation>&lt;font color = blue&gt;Connect&lt;/font&gt;</translation>
    </message>
    <message>
        <source>&lt;font color = red&gt;Disconnect&lt;/font&gt;</source>
        <translation>&lt;font color = red&gt;Disconnect&lt;/font&gt;</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Stop</translation>
    </message>
    <message>
        <source>Give up opening the link (Esc)</source>
        <translation>Give up opening the link (Esc)</translation>
    </message>
</context>
<context>
    <name>SupplementaryTable</name>
    <message>
        <source>Curve</source>
        <translation>Curve</translation>
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
        <translation>The curve</translation>
    </message>
    <message>
        <source>Half-power beam width, also across the ±180° seam</source>
        <translation>Half-power beam width, also across the ±180° seam</translation>
    </message>
    <message>
        <source>First-null beam width</source>
        <translation>First-null beam width</translation>
    </message>
    <message>
        <source>Highest side lobe relative to the peak</source>
        <translation>Highest side lobe relative to the peak</translation>
    </message>
    <message>
        <source>Front-to-back ratio: peak level minus the level in the opposite direction</source>
        <translation>Front-to-back ratio: peak level minus the level in the opposite direction</translation>
    </message>
    <message>
        <source>Peak [°]</source>
        <translation>Peak [°]</translation>
    </message>
    <message>
        <source>Squint [°]</source>
        <translation>Squint [°]</translation>
    </message>
    <message>
        <source>Direction of the peak</source>
        <translation>Direction of the peak</translation>
    </message>
    <message>
        <source>Direction of the middle between the half-power points</source>
        <translation>Direction of the middle between the half-power points</translation>
    </message>
    <message>
        <source>BW %1 dB [°]</source>
        <translation>BW %1 dB [°]</translation>
    </message>
    <message>
        <source>Beam width at %1 dB from the peak, also across a seam</source>
        <translation>Beam width at %1 dB from the peak, also across a seam</translation>
    </message>
    <message>
        <source>Mean [dB]</source>
        <translation>Mean [dB]</translation>
    </message>
    <message>
        <source>Greatest [dB]</source>
        <translation>Greatest [dB]</translation>
    </message>
    <message>
        <source>RMS [dB]</source>
        <translation>RMS [dB]</translation>
    </message>
    <message>
        <source>of a difference, within 20 dB below the first curve&apos;s peak</source>
        <translation>of a difference, within 20 dB below the first curve&apos;s peak</translation>
    </message>
    <message>
        <source>Mean %1</source>
        <translation>Mean %1</translation>
    </message>
    <message>
        <source>Greatest magnitude %1</source>
        <translation>Greatest magnitude %1</translation>
    </message>
    <message>
        <source>Root mean square %1</source>
        <translation>Root mean square %1</translation>
    </message>
</context>
<context>
    <name>SweepDevices</name>
    <message>
        <source>Rotator: %1</source>
        <translation>Rotator: %1</translation>
    </message>
    <message>
        <source>Meter: %1</source>
        <translation>Meter: %1</translation>
    </message>
    <message>
        <source>It does not tell what it is.</source>
        <translation>It does not tell what it is.</translation>
    </message>
</context>
<context>
    <name>SweepSession</name>
    <message>
        <source>The meter measures relative to a reference; turn that off first.</source>
        <translation>The meter measures relative to a reference; turn that off first.</translation>
    </message>
    <message>
        <source>Frequency, offset or averaging of the meter are not those of the run.</source>
        <translation>Frequency, offset or averaging of the meter are not those of the run.</translation>
    </message>
    <message>
        <source>There is a run file already: %1</source>
        <translation>There is a run file already: %1</translation>
    </message>
    <message>
        <source>The file exists already: %1</source>
        <translation>The file exists already: %1</translation>
    </message>
    <message>
        <source>This is no run file that can be resumed: %1</source>
        <translation>This is no run file that can be resumed: %1</translation>
    </message>
    <message>
        <source>This run was begun with another plan: %1</source>
        <translation>This run was begun with another plan: %1</translation>
    </message>
    <message>
        <source>Another program is measuring into this file: %1</source>
        <translation>Another program is measuring into this file: %1</translation>
    </message>
    <message>
        <source>Nothing can be written here: %1</source>
        <translation>Nothing can be written here: %1</translation>
    </message>
    <message>
        <source>The table does not move on; it was stopped.</source>
        <translation>The table does not move on; it was stopped.</translation>
    </message>
    <message>
        <source>The rotator failed three times in a row (error %1).</source>
        <translation>The rotator failed three times in a row (error %1).</translation>
    </message>
    <message>
        <source>The rotator refuses the angle: it is out of its limits.</source>
        <translation>The rotator refuses the angle: it is out of its limits.</translation>
    </message>
    <message>
        <source>The rotator refuses to work (error %1).</source>
        <translation>The rotator refuses to work (error %1).</translation>
    </message>
    <message>
        <source>The point could not be written: %1</source>
        <translation>The point could not be written: %1</translation>
    </message>
    <message>
        <source>The meter is set otherwise than at the start.</source>
        <translation>The meter is set otherwise than at the start.</translation>
    </message>
</context>
<context>
    <name>TrafficModel</name>
    <message>
        <source>to</source>
        <translation>to</translation>
    </message>
    <message>
        <source>from</source>
        <translation>from</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Time</translation>
    </message>
    <message>
        <source>Direction</source>
        <translation>Direction</translation>
    </message>
    <message>
        <source>Wait [ms]</source>
        <translation>Wait [ms]</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>Line</translation>
    </message>
</context>
<context>
    <name>TrafficPanel</name>
    <message>
        <source>&amp;Pause</source>
        <translation>&amp;Pause</translation>
    </message>
    <message>
        <source>Traffic</source>
        <translation>Traffic</translation>
    </message>
    <message>
        <source>L&amp;ines that hold</source>
        <translation>L&amp;ines that hold</translation>
    </message>
    <message>
        <source>Copy Line&amp;s</source>
        <translation>Copy Line&amp;s</translation>
    </message>
    <message>
        <source>Cl&amp;ear</source>
        <translation>Cl&amp;ear</translation>
    </message>
</context>
<context>
    <name>ViewActions</name>
    <message>
        <source>Manage Curves</source>
        <translation>Manage Curves</translation>
    </message>
    <message>
        <source>Beam Widths</source>
        <translation>Beam Widths</translation>
    </message>
    <message>
        <source>Levels below the peak in dB, for instance -3, -6, -10; none hides them:</source>
        <translation>Levels below the peak in dB, for instance -3, -6, -10; none hides them:</translation>
    </message>
    <message>
        <source>These are no levels: %1</source>
        <translation>These are no levels: %1</translation>
    </message>
    <message>
        <source>Please select a curve that has such a place.</source>
        <translation>Please select a curve that has such a place.</translation>
    </message>
</context>
<context>
    <name>WatchDesk</name>
    <message>
        <source>no reply in time</source>
        <translation>no reply in time</translation>
    </message>
    <message>
        <source>not understood</source>
        <translation>not understood</translation>
    </message>
    <message>
        <source>refused</source>
        <translation>refused</translation>
    </message>
    <message>
        <source>no link</source>
        <translation>no link</translation>
    </message>
    <message>
        <source>Statistics</source>
        <translation>Statistics</translation>
    </message>
    <message>
        <source>Limits</source>
        <translation>Limits</translation>
    </message>
    <message>
        <source>Traffic</source>
        <translation>Traffic</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;View</translation>
    </message>
    <message>
        <source>Open &amp;Record…</source>
        <translation>Open &amp;Record…</translation>
    </message>
    <message>
        <source>&amp;Reconnect by itself</source>
        <translation>&amp;Reconnect by itself</translation>
    </message>
</context>
<context>
    <name>WriteCheck</name>
    <message>
        <source>not an ordinary file</source>
        <translation>not an ordinary file</translation>
    </message>
    <message>
        <source>%1 is no folder</source>
        <translation>%1 is no folder</translation>
    </message>
</context>
<context>
    <name>WriteNotice</name>
    <message>
        <source>Settings: %1 (%2). What you set now is forgotten at the end.</source>
        <translation>Settings: %1 (%2). What you set now is forgotten at the end.</translation>
    </message>
    <message>
        <source>Records: %1 (%2). No reading is recorded until you choose another folder.</source>
        <translation>Records: %1 (%2). No reading is recorded until you choose another folder.</translation>
    </message>
    <message>
        <source>Log: %1 (%2). There will be no messages to look into.</source>
        <translation>Log: %1 (%2). There will be no messages to look into.</translation>
    </message>
    <message>
        <source>The console cannot write everything that it keeps:</source>
        <translation>The console cannot write everything that it keeps:</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Note</translation>
    </message>
    <message>
        <source>Another console runs from this folder: %1. The two write into the same records and overwrite each other&apos;s settings. Start one of them from a folder of its own.</source>
        <translation>Another console runs from this folder: %1. The two write into the same records and overwrite each other&apos;s settings. Start one of them from a folder of its own.</translation>
    </message>
</context>
</TS>
