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
    <name>XInvalidFeature</name>
    <message>
        <source>not available</source>
        <translation>不可用</translation>
    </message>
</context>
</TS>
