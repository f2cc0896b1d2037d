<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
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
    <name>CurveFileReader</name>
    <message>
        <source>The file is empty.</source>
        <translation>The file is empty.</translation>
    </message>
    <message>
        <source>The third line is not &quot;Angle,Power&quot;.</source>
        <translation>The third line is not &quot;Angle,Power&quot;.</translation>
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
        <source>rows with more than two fields, of which the first two were read: %1. Decimal commas are not understood, write decimal points.</source>
        <translation>rows with more than two fields, of which the first two were read: %1. Decimal commas are not understood, write decimal points.</translation>
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
        <source>Loss correction</source>
        <translation>Loss correction</translation>
    </message>
    <message>
        <source>There is another curve called &quot;%1&quot;.</source>
        <translation>There is another curve called &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no frequency: write 2450 for 2450 MHz, or 2.45 GHz.</source>
        <translation>&quot;%1&quot; is no frequency: write 2450 for 2450 MHz, or 2.45 GHz.</translation>
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
    <name>PointTableModel</name>
    <message>
        <source>%1
Angle [°]</source>
        <translation>%1
Angle [°]</translation>
    </message>
    <message>
        <source>%1
Level [dB]</source>
        <translation>%1
Level [dB]</translation>
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
        <source>Supplementary (textbook definitions)</source>
        <translation>Supplementary (textbook definitions)</translation>
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
</context>
</TS>
