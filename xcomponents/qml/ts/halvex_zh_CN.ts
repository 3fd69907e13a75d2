<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN">
<context>
    <name>QmlMessageBox</name>
    <message>
        <source>Message</source>
        <translation>消息</translation>
    </message>
</context>
<context>
    <name>QmlSettingToolDlg</name>
    <message>
        <source>Total</source>
        <translation>总数</translation>
    </message>
</context>
<context>
    <name>StartEndDateTimePopup</name>
    <message>
        <source>Setting</source>
        <translation>设置</translation>
    </message>
    <message>
        <source>Start DateTime</source>
        <translation>开始时间</translation>
    </message>
    <message>
        <source>End DateTime</source>
        <translation>结束时间</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Confirm</source>
        <translation>确认</translation>
    </message>
</context>
<context>
    <name>XDateTimeSet</name>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Confirm</source>
        <translation>确认</translation>
    </message>
</context>
<context>
    <name>XInvalidFeature</name>
    <message>
        <source>not available</source>
        <translation>不可用</translation>
    </message>
</context>
</TS>
