# The application frame, which every program shares, and the console.
target_sources(mz_core PRIVATE
    consolesettings.cpp consolesettings.h
    diagnosis.cpp diagnosis.h
    display.cpp display.h
    filewriting.cpp filewriting.h
    frameedge.cpp frameedge.h
    frequencyunit.cpp frequencyunit.h
    messagelog.cpp messagelog.h
    recordfile.cpp recordfile.h
    serialaddress.cpp serialaddress.h
    startoptions.cpp startoptions.h
    writecheck.cpp writecheck.h
)

target_sources(mz_widgets PRIVATE
    appinit.cpp appinit.h
    appstyle.cpp appstyle.h
    language.cpp language.h
    widgets/loadingdialog.cpp widgets/loadingdialog.h widgets/loadingdialog.ui
)

add_library(mz_console STATIC
    connectdialog.cpp connectdialog.h connectdialog.ui
    consolepanel.cpp consolepanel.h
    doctor.cpp doctor.h
    linkmode.h
    linksession.cpp linksession.h
    mainwindow.cpp mainwindow.h mainwindow.ui
    portlist.cpp portlist.h
    powerdisplay.cpp powerdisplay.h
    statuslabels.cpp statuslabels.h
    taskwait.cpp taskwait.h
    timechart.cpp timechart.h
    writenotice.cpp writenotice.h
)
target_link_libraries(mz_console PUBLIC mz_chart mz_link PRIVATE mz_flags)

mz_add_program(mz6218 SOURCES main.cpp LIBRARIES mz_console mz_process mz_resources)
