<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<!--
SPDX-FileCopyrightText: 2026 The Tessaly developers
SPDX-License-Identifier: MIT

A language that nobody asks for: who shows its text has read a file that it should not have read.
-->
<TS version="2.1" language="fr_FR" sourcelanguage="en">
<context>
    <name>MainWindow</name>
    <message>
        <source>Connect</source>
        <translation>Decoy</translation>
    </message>
</context>
</TS>
