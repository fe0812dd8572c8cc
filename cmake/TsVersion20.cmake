# Writes a joined catalogue in the TS 2.0 form, the form every catalogue of the
# instrument is kept in (lconvert writes 2.1; the content is the same).
#   cmake -D TS=<file> -P TsVersion20.cmake
file(READ ${TS} content)
string(REPLACE "<TS version=\"2.1\"" "<TS version=\"2.0\"" content "${content}")
file(WRITE ${TS} "${content}")
