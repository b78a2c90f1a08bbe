# Time per tool of a category, by the size of the category.
set terminal svg size 720,420 font "sans-serif,13" background "white"
set output output
set logscale x
set xlabel "tools in the category"
set ylabel "ns for each tool"
set format x "10^{%T}"
set yrange [0:*]
set grid
set key top left
stats data using 1 nooutput
plot for [i=0:STATS_blocks-1] data index i using 1:2 with linespoints linewidth 2 title columnheader(1)
