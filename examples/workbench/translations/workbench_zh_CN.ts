<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<!-- SPDX-FileCopyrightText: The Kelto developers -->
<!-- SPDX-License-Identifier: MIT -->
<TS version="2.1" language="zh_CN">
<context>
    <name>Calculator</name>
    <message>
        <source>This task has no calculation.</source>
        <translation>该任务没有计算。</translation>
    </message>
    <message>
        <source>The unit &quot;%1&quot; is unknown.</source>
        <translation>未知单位“%1”。</translation>
    </message>
    <message>
        <source>%1: enter a number.</source>
        <translation>%1：请输入数值。</translation>
    </message>
</context>
<context>
    <name>InputCheck</name>
    <message>
        <source>%1: enter a number greater than zero.</source>
        <translation>%1：请输入大于零的数。</translation>
    </message>
    <message>
        <source>%1: enter zero or a number greater than zero.</source>
        <translation>%1：请输入零或大于零的数。</translation>
    </message>
    <message>
        <source>%1: enter a temperature above -273.15 °C.</source>
        <translation>%1：请输入高于 -273.15 °C 的温度。</translation>
    </message>
    <message>
        <source>These values are too large or too small to calculate with. Check the number of digits.</source>
        <translation>数值过大或过小，无法计算。请检查位数。</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Choose task</source>
        <translation>选择任务</translation>
    </message>
    <message>
        <source>No task chosen</source>
        <translation>未选择任务</translation>
    </message>
    <message>
        <source>Press &quot;Choose task...&quot; and accept one of the tasks on offer.</source>
        <translation>请按“选择任务...”，并确认其中一个任务。</translation>
    </message>
    <message>
        <source>&amp;Task</source>
        <translation>任务(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Choose task...</source>
        <translation>选择任务(&amp;C)...</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>退出(&amp;Q)</translation>
    </message>
    <message>
        <source>Choose task...</source>
        <translation>选择任务...</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>Symbol</source>
        <translation>符号</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>数值</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>单位</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>分组</translation>
    </message>
    <message>
        <source>Parameters</source>
        <translation>参数</translation>
    </message>
    <message>
        <source>Results</source>
        <translation>结果</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1：%2</translation>
    </message>
    <message>
        <source>All values are valid. Change one, and the results follow.</source>
        <translation>所有数值均有效。修改数值后结果随即更新。</translation>
    </message>
    <message>
        <source>%1: enter a number.</source>
        <translation>%1：请输入数值。</translation>
    </message>
</context>
<context>
    <name>ModuleTexts</name>
    <message>
        <source>calculation</source>
        <translation>计算</translation>
    </message>
    <message>
        <source>Beam</source>
        <translation>梁</translation>
    </message>
    <message>
        <source>Statics</source>
        <translation>静力学</translation>
    </message>
    <message>
        <source>Bending of a straight beam of rectangular section.</source>
        <translation>矩形截面直梁的弯曲。</translation>
    </message>
    <message>
        <source>Geometry</source>
        <translation>几何</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>长度</translation>
    </message>
    <message>
        <source>Section width</source>
        <translation>截面宽度</translation>
    </message>
    <message>
        <source>Section height</source>
        <translation>截面高度</translation>
    </message>
    <message>
        <source>Material</source>
        <translation>材料</translation>
    </message>
    <message>
        <source>Elastic modulus</source>
        <translation>弹性模量</translation>
    </message>
    <message>
        <source>Load</source>
        <translation>载荷</translation>
    </message>
    <message>
        <source>Point load</source>
        <translation>集中载荷</translation>
    </message>
    <message>
        <source>Line load</source>
        <translation>均布载荷</translation>
    </message>
    <message>
        <source>Cantilever</source>
        <translation>悬臂</translation>
    </message>
    <message>
        <source>A beam held at one end. The point load acts at the free end, the line load over the whole length; enter 0 for a load that is absent. The results are the largest values along the beam.</source>
        <translation>一端固定的梁。集中载荷作用于自由端，均布载荷作用于全长；没有的载荷请输入 0。结果为沿梁的最大值。</translation>
    </message>
    <message>
        <source>Simply supported</source>
        <translation>两端简支</translation>
    </message>
    <message>
        <source>A beam resting on a support at each end. The point load acts at midspan, the line load over the whole length; enter 0 for a load that is absent. The results are the largest values along the beam.</source>
        <translation>两端简支的梁。集中载荷作用于跨中，均布载荷作用于全长；没有的载荷请输入 0。结果为沿梁的最大值。</translation>
    </message>
    <message>
        <source>Fixed at both ends</source>
        <translation>两端固定</translation>
    </message>
    <message>
        <source>A beam clamped at both ends. The point load acts at midspan, the line load over the whole length; enter 0 for a load that is absent. The results are the largest values along the beam.</source>
        <translation>两端固定的梁。集中载荷作用于跨中，均布载荷作用于全长；没有的载荷请输入 0。结果为沿梁的最大值。</translation>
    </message>
    <message>
        <source>Deformation</source>
        <translation>变形</translation>
    </message>
    <message>
        <source>Deflection</source>
        <translation>挠度</translation>
    </message>
    <message>
        <source>Slope</source>
        <translation>转角</translation>
    </message>
    <message>
        <source>Stress</source>
        <translation>应力</translation>
    </message>
    <message>
        <source>Bending moment</source>
        <translation>弯矩</translation>
    </message>
    <message>
        <source>Bending stress</source>
        <translation>弯曲应力</translation>
    </message>
    <message>
        <source>Helical spring</source>
        <translation>螺旋弹簧</translation>
    </message>
    <message>
        <source>Cylindrical helical spring of round wire.</source>
        <translation>圆截面钢丝圆柱螺旋弹簧。</translation>
    </message>
    <message>
        <source>Wire diameter</source>
        <translation>钢丝直径</translation>
    </message>
    <message>
        <source>Mean coil diameter</source>
        <translation>弹簧中径</translation>
    </message>
    <message>
        <source>Active coils</source>
        <translation>有效圈数</translation>
    </message>
    <message>
        <source>Shear modulus</source>
        <translation>切变模量</translation>
    </message>
    <message>
        <source>Force</source>
        <translation>力</translation>
    </message>
    <message>
        <source>Compression</source>
        <translation>压缩</translation>
    </message>
    <message>
        <source>A spring pressed along its axis, with ends that are closed and ground. The stress is that at the inner side of the coil.</source>
        <translation>沿轴线受压的弹簧，两端并紧磨平。应力为簧圈内侧的应力。</translation>
    </message>
    <message>
        <source>Free length</source>
        <translation>自由高度</translation>
    </message>
    <message>
        <source>Extension</source>
        <translation>拉伸</translation>
    </message>
    <message>
        <source>A spring pulled along its axis. It opens when the force exceeds the initial tension. The stress is that at the inner side of the coil.</source>
        <translation>沿轴线受拉的弹簧。力超过初拉力时弹簧开始伸长。应力为簧圈内侧的应力。</translation>
    </message>
    <message>
        <source>Initial tension</source>
        <translation>初拉力</translation>
    </message>
    <message>
        <source>Torsion</source>
        <translation>扭转</translation>
    </message>
    <message>
        <source>A spring twisted about its axis. The stress is that at the inner side of the coil.</source>
        <translation>绕轴线受扭的弹簧。应力为簧圈内侧的应力。</translation>
    </message>
    <message>
        <source>Torque</source>
        <translation>扭矩</translation>
    </message>
    <message>
        <source>Stiffness</source>
        <translation>刚度</translation>
    </message>
    <message>
        <source>Spring rate</source>
        <translation>弹簧刚度</translation>
    </message>
    <message>
        <source>Torsional rate</source>
        <translation>扭转刚度</translation>
    </message>
    <message>
        <source>Spring deflection</source>
        <translation>弹簧变形量</translation>
    </message>
    <message>
        <source>Angle of twist</source>
        <translation>扭转角</translation>
    </message>
    <message>
        <source>Curvature factor</source>
        <translation>曲度系数</translation>
    </message>
    <message>
        <source>Shear stress</source>
        <translation>切应力</translation>
    </message>
    <message>
        <source>Pressure vessel</source>
        <translation>压力容器</translation>
    </message>
    <message>
        <source>Vessels</source>
        <translation>容器</translation>
    </message>
    <message>
        <source>Stresses in the wall of a cylindrical vessel with closed ends.</source>
        <translation>两端封闭的圆筒形容器壁内的应力。</translation>
    </message>
    <message>
        <source>Inner diameter</source>
        <translation>内径</translation>
    </message>
    <message>
        <source>Wall thickness</source>
        <translation>壁厚</translation>
    </message>
    <message>
        <source>Internal pressure</source>
        <translation>内压</translation>
    </message>
    <message>
        <source>Thin wall</source>
        <translation>薄壁</translation>
    </message>
    <message>
        <source>Membrane stresses after Barlow, for a wall of at most a tenth of the inner radius. The pressure is that above the surroundings.</source>
        <translation>按薄膜理论计算的应力，适用于壁厚不超过内半径十分之一的容器。压力为高于外界的表压。</translation>
    </message>
    <message>
        <source>Thick wall</source>
        <translation>厚壁</translation>
    </message>
    <message>
        <source>Stresses after Lamé at the inner surface, in the middle and at the outer surface of a wall of any thickness.</source>
        <translation>按拉梅公式计算任意壁厚容器的内壁、壁中和外壁处的应力。</translation>
    </message>
    <message>
        <source>External pressure</source>
        <translation>外压</translation>
    </message>
    <message>
        <source>Hoop stress inside</source>
        <translation>内壁环向应力</translation>
    </message>
    <message>
        <source>Hoop stress mid-wall</source>
        <translation>壁中环向应力</translation>
    </message>
    <message>
        <source>Hoop stress outside</source>
        <translation>外壁环向应力</translation>
    </message>
    <message>
        <source>Radial stress inside</source>
        <translation>内壁径向应力</translation>
    </message>
    <message>
        <source>Radial stress mid-wall</source>
        <translation>壁中径向应力</translation>
    </message>
    <message>
        <source>Radial stress outside</source>
        <translation>外壁径向应力</translation>
    </message>
    <message>
        <source>Axial stress</source>
        <translation>轴向应力</translation>
    </message>
    <message>
        <source>Plane wall</source>
        <translation>平壁</translation>
    </message>
    <message>
        <source>Heat</source>
        <translation>传热</translation>
    </message>
    <message>
        <source>Heat conduction through a plane wall of several layers.</source>
        <translation>多层平壁的导热。</translation>
    </message>
    <message>
        <source>Layers</source>
        <translation>层</translation>
    </message>
    <message>
        <source>Layer thickness</source>
        <translation>层厚度</translation>
    </message>
    <message>
        <source>Layer conductivity</source>
        <translation>层导热系数</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>温度</translation>
    </message>
    <message>
        <source>Convection</source>
        <translation>对流</translation>
    </message>
    <message>
        <source>Steady</source>
        <translation>稳态</translation>
    </message>
    <message>
        <source>Steady heat flow between two known surface temperatures. Enter the layers from the inner to the outer side, separated by semicolons.</source>
        <translation>已知两侧表面温度时的稳态导热。请从内到外输入各层，以分号分隔。</translation>
    </message>
    <message>
        <source>Inner surface temperature</source>
        <translation>内表面温度</translation>
    </message>
    <message>
        <source>Outer surface temperature</source>
        <translation>外表面温度</translation>
    </message>
    <message>
        <source>With convection</source>
        <translation>带对流</translation>
    </message>
    <message>
        <source>Steady heat flow between the air on both sides. Enter the layers from the inner to the outer side, separated by semicolons.</source>
        <translation>两侧空气之间的稳态传热。请从内到外输入各层，以分号分隔。</translation>
    </message>
    <message>
        <source>Inner air temperature</source>
        <translation>内侧空气温度</translation>
    </message>
    <message>
        <source>Outer air temperature</source>
        <translation>外侧空气温度</translation>
    </message>
    <message>
        <source>Inner film coefficient</source>
        <translation>内侧表面传热系数</translation>
    </message>
    <message>
        <source>Outer film coefficient</source>
        <translation>外侧表面传热系数</translation>
    </message>
    <message>
        <source>Thermal resistance</source>
        <translation>热阻</translation>
    </message>
    <message>
        <source>Heat flux</source>
        <translation>热流密度</translation>
    </message>
    <message>
        <source>Boundary temperatures</source>
        <translation>各界面温度</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>更新</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>工具</translation>
    </message>
    <message>
        <source>Records the version of the program for the updater.</source>
        <translation>为更新程序记录本程序的版本。</translation>
    </message>
</context>
<context>
    <name>Numbers</name>
    <message>
        <source>&quot;%1&quot; is not a number. Write decimals with a point and separate the numbers by semicolons, as in 0.5; 12.</source>
        <translation>“%1”不是数。小数请用小数点，各数以分号分隔，例如 0.5; 12。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a number. Write decimals with a point, as in 0.5.</source>
        <translation>“%1”不是数。小数请用小数点，例如 0.5。</translation>
    </message>
</context>
<context>
    <name>Spring</name>
    <message>
        <source>%1: enter more than the wire diameter, or the coil has no inside.</source>
        <translation>%1：必须大于钢丝直径，否则簧圈没有内孔。</translation>
    </message>
    <message>
        <source>%1: enter at least the solid length of %2 mm.</source>
        <translation>%1：不得小于压并高度 %2 mm。</translation>
    </message>
    <message>
        <source>%1: the coils touch at %2 N. Enter less, or make the spring longer or stiffer.</source>
        <translation>%1：达到 %2 N 时簧圈已压并。请减小力，或加长、加硬弹簧。</translation>
    </message>
    <message>
        <source>%1: enter at least the initial tension; below it the coils stay closed.</source>
        <translation>%1：不得小于初拉力，否则簧圈保持并紧。</translation>
    </message>
</context>
<context>
    <name>Vessel</name>
    <message>
        <source>%1: enter at most %2 mm, a tenth of the inner radius, or choose the task for thick walls.</source>
        <translation>%1：不得大于 %2 mm（内半径的十分之一），否则请选择厚壁任务。</translation>
    </message>
</context>
<context>
    <name>Wall</name>
    <message>
        <source>%1: enter at least one layer.</source>
        <translation>%1：请至少输入一层。</translation>
    </message>
    <message>
        <source>%1: enter one number per layer. There are %2 layers and %3 numbers.</source>
        <translation>%1：每层输入一个数。现有 %2 层、%3 个数。</translation>
    </message>
</context>
</TS>
