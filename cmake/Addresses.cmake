# Where the Help menu leads outside the program: the one place to change it. Who builds the program under another name
# gives other addresses, for one build by cmake -DTARVELO_WEB_PAGE=... and for all here.

set(TARVELO_WEB_PAGE "https://tarvelo.org/" CACHE STRING "The web page about the program")
set(TARVELO_STORE_PAGE "appstream://org.tarvelo.tarvelo" CACHE STRING "The program in the software store")
set(TARVELO_MORE_PROGRAMS "https://flathub.org/apps/collection/developer/Tarvelo"
    CACHE STRING "The maker's other programs in the software store")
set(TARVELO_ABOUT_PAGE "https://tarvelo.org/about/" CACHE STRING "The web page about the maker")
