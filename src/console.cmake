# The application frame, which every program shares, and the console.
target_sources(mz_core PRIVATE
    consolesettings.cpp consolesettings.h
    frameedge.cpp frameedge.h
    frequencyunit.cpp frequencyunit.h
    messagelog.cpp messagelog.h
    recordfile.cpp recordfile.h
    startoptions.cpp startoptions.h
)

target_sources(mz_widgets PRIVATE
    appinit.cpp appinit.h
    appstyle.cpp appstyle.h
    language.cpp language.h
)
