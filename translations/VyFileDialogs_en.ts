<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<!-- SPDX-License-Identifier: MIT
     Empty: the sources are English. It is there to be found, lest a user who reads English
     before German get the German texts. -->
<TS version="2.1" language="en" sourcelanguage="en">
</TS>
