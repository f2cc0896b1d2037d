<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>ConnectDialog</name>
    <message>
        <source>Dialog</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Com</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Serial port of the instrument</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Serial port</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Baud rate</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Baud rate that the instrument is set to, 1200 to 115200</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>IP address</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>IP address of the instrument; its TCP port is always 5001</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Look for serial ports once more</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Connect</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Connection</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1200</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>2400</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>4800</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>9600</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>14400</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>19200</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>38400</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>57600</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>115200</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>CurveFileReader</name>
    <message>
        <source>The file is empty.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The third line is not &quot;Angle,Power&quot;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: Incorrect file format. %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This is a folder.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file cannot be opened: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file cannot be read: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: The file holds no point.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>rows with more than two fields, of which the first two were read: %1. Decimal commas are not understood, write decimal points.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>rows with a field that is no number and was read as 0: %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>rows left out because a value is not finite: %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>rows left out because they have fewer than two fields: %1.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>CurveName</name>
    <message>
        <source>Warning</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Existing frequency!
 Please modify the name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>OK</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>CurveTableModel</name>
    <message>
        <source>Pasted or dropped</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The frequency lies outside the loss table: the correction is extrapolated.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Curve</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Frequency (MHz)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Material</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Points</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Loss correction</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is another curve called &quot;%1&quot;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no frequency: write 2450 for 2450 MHz, or 2.45 GHz.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>LineEdit</name>
    <message>
        <source>Range:%1-%2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Number</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>LoadingDialog</name>
    <message>
        <source>Dialog</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1,waiting...%2 s</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>LossCorrection</name>
    <message>
        <source>This is a folder.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file cannot be opened: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The table has no &quot;upside&quot; and no &quot;downside&quot; row.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This is no loss table: it has no header row with &quot;category&quot;.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MessageDialog</name>
    <message>
        <source>Dialog</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Main Information</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Other Information</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The present value</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Present value</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>to</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The new value</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>New value</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>OK</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Message</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MessageSimpleDialog</name>
    <message>
        <source>Message</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>photo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Successful</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>OK</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MyParaInfoTable</name>
    <message>
        <source>Pattern parameters</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Gain</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>3dB (L)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>3dB (R)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>3dB Width</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>First Null(L)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>First Null(R)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>First Side Lobe(L)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>First Side Lobe(R)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Before After Ratio(R)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Axial Ratio</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>CrossPolarRatio</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ParaInfoTable</name>
    <message>
        <source>Pattern parameters by frequency</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Frequency(MHz)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Gain</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>3dB Width</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>First Side Lobe(L)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>First Side Lobe(R)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Before After Ratio</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Axial Ratio</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>CrossPolarRatio</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Amplitude</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PointTableModel</name>
    <message>
        <source>%1
Angle [°]</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1
Level [dB]</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Report</name>
    <message>
        <source>%1° to %2°</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Curve</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Frequency (MHz)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Material</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Points</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Angles</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Loss correction</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Curves</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pattern parameters</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Supplementary (textbook definitions)</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SerialLogic</name>
    <message>
        <source>Failed to connect %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Please open the serial port first.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Failed to send cmd.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Please connect first.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SupplementaryTable</name>
    <message>
        <source>Curve</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>HPBW [°]</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>FNBW [°]</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>SLL [dB]</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>F/B [dB]</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The curve</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Half-power beam width, also across the ±180° seam</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>First-null beam width</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Highest side lobe relative to the peak</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Front-to-back ratio: peak level minus the level in the opposite direction</source>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>
