# Time for the whole tree, by the number of tools.
set terminal svg size 720,420 font "sans-serif,13" background "white"
set output output
set logscale xy
set xlabel "tools in all"
set ylabel "ms for the whole tree"
set format x "10^{%T}"
set format y "10^{%T}"
set grid
set key top left
set xrange [5e3:2e6]
stats data using ($1 == 10000 ? $2 : NaN) name "first" nooutput
plot data using 1:($1*$2/1e6) with points pointtype 7 title "measured", \
     x * first_min / 1e6 title "linear, through 100 x 100"
